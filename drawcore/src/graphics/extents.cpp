#include "drawcore/src/graphics/extents.h"

#include <algorithm>

#include "drawcore/include/drawcore/view.h"
#include "orlo/host/viewport.h"

namespace drawcore {

void Extents::Add(const Vec3& point) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
}

void Extents::Add(const Extents& other) {
    if (other.IsEmpty()) return;
    Add(other.low);
    Add(other.high);
}

Extents Extents::Transformed(const Matrix& matrix) const {
    Extents box;
    if (IsEmpty()) return box;
    for (int corner = 0; corner < 8; ++corner)
        box.Add(matrix.Apply(
            {corner & 1 ? high.x : low.x, corner & 2 ? high.y : low.y, corner & 4 ? high.z : low.z}));
    return box;
}

} // namespace drawcore

using drawcore::Extents;

double ExtentsGetX1(const ExtentsStruct* extents) {
    return extents && !Extents::From(extents)->IsEmpty() ? Extents::From(extents)->low.x : 0.0;
}

double ExtentsGetX2(const ExtentsStruct* extents) {
    return extents && !Extents::From(extents)->IsEmpty() ? Extents::From(extents)->high.x : 0.0;
}

int ExtentsGetBox(const ExtentsStruct* extents, double box[4]) {
    if (!extents || Extents::From(extents)->IsEmpty()) return 0;
    const Extents& from = *Extents::From(extents);
    box[0] = from.low.x;
    box[1] = from.low.y;
    box[2] = from.high.x;
    box[3] = from.high.y;
    return 1;
}
