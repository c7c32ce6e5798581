// Functions of the host contract for graphics.

#include <cmath>
#include <new>

#include "drawcore/include/drawcore/graphic.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/ellipse_graphic.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "orlo/host/graphic.h"
#include "orlo/host/vertex.h"
#include "orlo/host/viewport.h"

using namespace drawcore;

namespace {

Graphic* NewOfType(int type) {
    switch (type) {
    case kGraphicVertices:
        return new VertexGraphic;
    case kGraphicPenBrush:
        return new EllipseGraphic;
    case kGraphicText:
        return new TextGraphic;
    case kGraphicInsert:
        return new InsertGraphic;
    default:
        return nullptr;
    }
}

// Prefetches the record of a member that an iteration will soon return: in a large drawing, records are scattered over
// memory, and waiting for them would take most of the time of an iteration.
void PrefetchMember(const Graphic& graphic, size_t index) {
    constexpr size_t kCacheLine = 64;
    const auto* record = reinterpret_cast<const char*>(graphic.MemberAt(index));
    for (size_t offset = 0; offset < sizeof(GraphicStruct); offset += kCacheLine)
        __builtin_prefetch(record + offset);
}

// Returns the first member at or after the index that passes the filter, and sets the position to the one after it.
GraphicStruct* MemberFrom(GraphicStruct* set, uint32_t index, void* position, uint32_t filter) {
    if (!set || !position) return nullptr;
    const Graphic& graphic = *Graphic::From(set);
    const size_t count = graphic.MemberCount();
    Graphic* found = nullptr;
    while (index < count && !found) {
        Graphic* member = graphic.MemberAt(index++);
        if (PassesFilter(*member, filter)) found = member;
    }
    *static_cast<uint32_t*>(position) = index;
    constexpr uint32_t kAhead = 6;
    if (index + kAhead < count) PrefetchMember(graphic, index + kAhead);
    return found;
}

VertexGraphic* AsVertices(GraphicStruct* graphic) {
    return graphic && graphic->bType == kGraphicVertices ? dynamic_cast<VertexGraphic*>(Graphic::From(graphic))
                                                         : nullptr;
}

// Changes an attribute without validating it like a property, and records the change for undo.
template <class Change>
void ChangeAttribute(GraphicStruct* record, Change change) {
    if (!record) return;
    Graphic& graphic = *Graphic::From(record);
    graphic.ChangingAppearance();
    change(graphic);
    graphic.ChangedAppearance();
}

template <class Change>
void ChangePen(GraphicStruct* record, Change change) {
    ChangeAttribute(record, [&](Graphic& graphic) { change(graphic.GetPen()); });
}

template <class Change>
void ChangeBrush(GraphicStruct* record, Change change) {
    ChangeAttribute(record, [&](Graphic& graphic) {
        Brush brush = graphic.GetBrush();
        change(brush);
        graphic.SetBrush(brush);
    });
}

} // namespace

GraphicStruct* GraphicNewEx(int type, int, int) {
    try {
        return NewOfType(type);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void GraphicDispose(GraphicStruct** graphic) {
    if (!graphic || !*graphic) return;
    delete Graphic::From(*graphic);
    *graphic = nullptr;
}

GraphicStruct* GraphicCopyEx(GraphicStruct* graphic, int, int, int) {
    try {
        return graphic ? Graphic::From(graphic)->Copy().release() : nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void GraphicAttach(GraphicStruct* graphic, DrawingStruct* drawing) {
    if (graphic) Graphic::From(graphic)->Attach(Drawing::Find(drawing));
}

DrawingStruct* GraphicGetDrawing(GraphicStruct* graphic) {
    return graphic ? Graphic::From(graphic)->GetDrawing() : nullptr;
}

GraphicStruct* GraphicAdd(GraphicStruct* parent, GraphicStruct* child) {
    if (!parent || !child || parent == child || Graphic::From(child)->Parent()) return nullptr;
    return Graphic::From(parent)->Add(std::unique_ptr<Graphic>(Graphic::From(child)));
}

void GraphicDelete(GraphicStruct* owner, GraphicStruct* child) {
    if (owner && child) Graphic::From(owner)->Release(Graphic::From(child)).release(); // the caller owns it now
}

GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int, uint32_t filter) {
    return MemberFrom(set, 0, position, filter);
}

GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int, uint32_t filter) {
    return position ? MemberFrom(set, *static_cast<uint32_t*>(position), position, filter) : nullptr;
}

int GraphicGetIsGroup(GraphicStruct* graphic) {
    return graphic && Graphic::From(graphic)->GetKind() == Kind::Group;
}

uint32_t GraphicGetKind(GraphicStruct* graphic) {
    return graphic ? static_cast<uint32_t>(Graphic::From(graphic)->GetKind()) : 0;
}

const PropertyTable* GraphicGetVtbl(GraphicStruct* graphic) {
    return graphic ? Graphic::From(graphic)->GetPropertyTable() : nullptr;
}

void GraphicSetVtbl(GraphicStruct* graphic, const PropertyTable* table) {
    if (graphic) Graphic::From(graphic)->SetPropertyTable(table);
}

void GraphicSetStyleName(GraphicStruct* graphic, const char* name) {
    if (graphic) Graphic::From(graphic)->SetStyleName(name);
}

void GraphicSetDirty(GraphicStruct* graphic, int dirty) {
    if (!graphic) return;
    if (dirty)
        graphic->dwFlags |= kFlagDirty;
    else
        graphic->dwFlags &= ~kFlagDirty;
}

int GraphicIsDirty(GraphicStruct* graphic) {
    return graphic && (graphic->dwFlags & kFlagDirty);
}

void GraphicSetExtentsDirty(GraphicStruct* graphic, int dirty) {
    if (graphic && dirty) Graphic::From(graphic)->InvalidateExtents();
}

const ExtentsStruct* GraphicGetExtentsSel(GraphicStruct* graphic, int) {
    return graphic ? &Graphic::From(graphic)->GetExtents() : nullptr;
}

void GraphicSetPenColor(GraphicStruct* graphic, uint32_t color) {
    ChangePen(graphic, [&](Pen& pen) { pen.color = color; });
}

void GraphicSetPenStyle(GraphicStruct* graphic, uint16_t style) {
    ChangePen(graphic, [&](Pen& pen) { pen.style = style; });
}

void GraphicSetPenScale(GraphicStruct* graphic, double scale) {
    if (std::isfinite(scale)) ChangePen(graphic, [&](Pen& pen) { pen.scale = std::fabs(scale); });
}

void GraphicSetScaleSystem(GraphicStruct* graphic, int system) {
    ChangeAttribute(graphic, [&](Graphic& changed) {
        if (system == kScaleWorld) changed.GetPen().width = ShownPenWidth(changed);
        changed.GetPen().scaleSystem = system == kScaleWorld ? kScaleWorld : kScalePaper;
    });
}

void GraphicSetPenWidth(GraphicStruct* graphic, double width) {
    if (std::isfinite(width)) ChangePen(graphic, [&](Pen& pen) { pen.width = std::fabs(width); });
}

void GraphicSetBrushColor(GraphicStruct* graphic, uint32_t color) {
    ChangeBrush(graphic, [&](Brush& brush) { brush.color = color; });
}

void GraphicSetBrushScale(GraphicStruct* graphic, double scale) {
    if (std::isfinite(scale)) ChangeBrush(graphic, [&](Brush& brush) { brush.scale = std::fabs(scale); });
}

void GraphicSetBrushStyle(GraphicStruct* graphic, uint16_t style) {
    ChangeBrush(graphic, [&](Brush& brush) { brush.style = style; });
}

int GraphicVertexAdd(GraphicStruct* graphic, VertexStruct* vertex) {
    VertexGraphic* list = AsVertices(graphic);
    if (!list || !vertex) return 0;
    list->ChangingShape();
    list->vertices.push_back(*Vertex::From(vertex));
    list->ChangedShape();
    return 1;
}

VertexStruct* GraphicVertexFirst(GraphicStruct* graphic, int* cookie, int from, int flags) {
    if (cookie) *cookie = -1;
    return GraphicVertexNext(graphic, cookie, from, flags);
}

VertexStruct* GraphicVertexNext(GraphicStruct* graphic, int* cookie, int, int) {
    if (!graphic || !cookie) return nullptr;
    Vertex* const vertex = Graphic::From(graphic)->VertexAt(static_cast<size_t>(++*cookie));
    if (vertex) vertex->SetOwner(Graphic::From(graphic));
    return vertex;
}
