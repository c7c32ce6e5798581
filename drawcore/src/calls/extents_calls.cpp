// The host's and the host program's calls on extents.

#include "drawcore/include/drawcore/view.h"
#include "drawcore/src/geometry/extents.h"
#include "orlo/host/viewport.h"

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
