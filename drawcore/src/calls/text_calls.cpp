// Functions of the host contract for text graphics.

#include <cmath>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/graphics/vertex.h"
#include "orlo/host/text.h"

using namespace drawcore;

int TextSetVWHAEx(GraphicStruct* graphic, VertexStruct* vertex, double width, double height, double angle,
                  const char* text) {
    auto* of = graphic ? dynamic_cast<TextGraphic*>(Graphic::From(graphic)) : nullptr;
    if (!of || !vertex || !text || !std::isfinite(width) || !std::isfinite(height) || !std::isfinite(angle)) return 0;
    const Vec3 position = Vertex::From(vertex)->Position();
    if (!IsFinite(position)) return 0;
    of->ChangingShape();
    of->state.position = position;
    of->state.fitWidth = width;
    if (height > 0) of->state.height = height;
    of->state.along = {std::cos(angle), std::sin(angle), 0};
    of->state.up = {-std::sin(angle), std::cos(angle), 0};
    of->state.text = Utf16FromCodePage(text);
    of->ChangedShape();
    return 1;
}

void TextExternalJustify(GraphicStruct* graphic, int) {
    if (graphic) Graphic::From(graphic)->ChangedShape();
}
