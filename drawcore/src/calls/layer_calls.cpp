// Functions of the host contract for layers.

#include "drawcore/include/drawcore/layer.h"
#include "drawcore/src/database/drawing.h"

using namespace drawcore;

namespace {

Layer* FindLayer(DrawingStruct* drawing, uint16_t id) {
    Drawing* found = Drawing::Find(drawing);
    LayerTable* layers = found ? found->Layers() : nullptr;
    return layers ? layers->At(id) : nullptr;
}

} // namespace

uint32_t LayerGetColor(DrawingStruct* drawing, uint16_t id) {
    const Layer* layer = FindLayer(drawing, id);
    return layer ? layer->color : kColorNone;
}

int LayerGetVisible(DrawingStruct* drawing, uint16_t id) {
    const Layer* layer = FindLayer(drawing, id);
    return layer && layer->IsVisible();
}

int LayerGetReadOnly(DrawingStruct* drawing, uint16_t id) {
    const Layer* layer = FindLayer(drawing, id);
    return layer && layer->locked;
}

uint32_t LayerGetFlags(DrawingStruct* drawing, uint16_t id) {
    const Layer* layer = FindLayer(drawing, id);
    if (!layer) return 0;
    return uint32_t{layer->off} * kLayerOff | uint32_t{layer->frozen} * kLayerFrozen |
           uint32_t{layer->locked} * kLayerLocked;
}

uint16_t LayerGetLineStyle(DrawingStruct* drawing, uint16_t id) {
    const Layer* layer = FindLayer(drawing, id);
    return layer ? layer->lineStyle : kNoId;
}

int LayerSet(DrawingStruct* drawing, uint16_t id, uint32_t color, uint32_t flags, uint16_t lineStyle) {
    Layer* layer = FindLayer(drawing, id);
    if (!layer || !IsPlainColor(color)) return 0;
    layer->color = color;
    layer->lineStyle = lineStyle;
    layer->off = flags & kLayerOff;
    layer->frozen = flags & kLayerFrozen;
    layer->locked = flags & kLayerLocked;
    return 1;
}
