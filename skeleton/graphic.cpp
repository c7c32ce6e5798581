// Graphics: creation, ownership, members, attributes and vertices.

#include <new>

#include "database.h"

Graphic::Graphic(int type) : GraphicStruct{} {
    bType = static_cast<uint8_t>(type);
    dwFlags = kFlagNoParent;
}

void Graphic::Attach(Drawing* to) {
    drawing = to;
    for (const auto& member : members)
        member->Attach(to);
}

namespace {

// The position is the index of the next member. The filter is ignored; a database can define its bits.
GraphicStruct* MemberAt(GraphicStruct* set, uint32_t* position) {
    const auto& members = Graphic::From(set)->members;
    return *position < members.size() ? members[(*position)++].get() : nullptr;
}

VertexStruct* VertexAt(GraphicStruct* graphic, int* cookie) {
    auto& vertices = Graphic::From(graphic)->content.vertices;
    const auto place = static_cast<size_t>(*cookie);
    if (place >= vertices.size()) return nullptr;
    ++*cookie;
    return &vertices[place];
}

std::unique_ptr<Graphic> Copy(const Graphic& from) {
    auto copy = std::make_unique<Graphic>(from.bType);
    copy->dwOneOutline = from.dwOneOutline;
    copy->content = from.content;
    for (const auto& member : from.members)
        ::GraphicAdd(copy.get(), Copy(*member).release());
    copy->drawing = from.drawing;
    return copy;
}

} // namespace

GraphicStruct* GraphicNewEx(int type, int, int) {
    if (type != kGraphicText && type != kGraphicVertices && type != kGraphicInsert) return nullptr;
    auto* graphic = new (std::nothrow) Graphic(type);
    if (graphic && type == kGraphicInsert) graphic->content.vertices.resize(4);
    return graphic;
}

void GraphicDispose(GraphicStruct** graphic) {
    if (!graphic) return;
    delete Graphic::From(*graphic);
    *graphic = nullptr;
}

GraphicStruct* GraphicCopyEx(GraphicStruct* graphic, int, int, int) try {
    return graphic ? Copy(*Graphic::From(graphic)).release() : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

void GraphicAttach(GraphicStruct* graphic, DrawingStruct* drawing) {
    if (graphic) Graphic::From(graphic)->Attach(Drawing::From(drawing));
}

DrawingStruct* GraphicGetDrawing(GraphicStruct* graphic) {
    return graphic ? Graphic::From(graphic)->drawing : nullptr;
}

GraphicStruct* GraphicAdd(GraphicStruct* parent, GraphicStruct* child) {
    if (!parent || !child || parent == child || !(child->dwFlags & kFlagNoParent)) return nullptr;
    Graphic::From(parent)->members.emplace_back(Graphic::From(child));
    child->pParent = parent;
    child->dwFlags &= ~kFlagNoParent;
    Graphic::From(child)->Attach(Graphic::From(parent)->drawing);
    return child;
}

// The caller then owns the child.
void GraphicDelete(GraphicStruct* owner, GraphicStruct* child) {
    if (!owner || !child) return;
    auto& members = Graphic::From(owner)->members;
    for (auto member = members.begin(); member != members.end(); ++member) {
        if (member->get() != child) continue;
        member->release();
        members.erase(member);
        child->pParent = nullptr;
        child->dwFlags |= kFlagNoParent;
        return;
    }
}

GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int, uint32_t) {
    if (!set || !position) return nullptr;
    auto* place = static_cast<uint32_t*>(position);
    *place = 0;
    return MemberAt(set, place);
}

GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int, uint32_t) {
    return set && position ? MemberAt(set, static_cast<uint32_t*>(position)) : nullptr;
}

int GraphicGetIsGroup(GraphicStruct* graphic) {
    return graphic && graphic->bType == kGraphicVertices && !Graphic::From(graphic)->members.empty() &&
           Graphic::From(graphic)->content.vertices.empty();
}

const PropertyTable* GraphicGetVtbl(GraphicStruct* graphic) {
    return graphic ? &kProperties : nullptr;
}

// Extents are computed on demand, so this database does not need to mark them.
void GraphicSetDirty(GraphicStruct*, int) {}

void GraphicSetExtentsDirty(GraphicStruct*, int) {}

void GraphicSetPenColor(GraphicStruct* graphic, uint32_t color) {
    if (graphic) Graphic::From(graphic)->content.penColor = color;
}

void GraphicSetPenStyle(GraphicStruct* graphic, uint16_t style) {
    if (graphic) Graphic::From(graphic)->content.penStyle = style;
}

void GraphicSetPenScale(GraphicStruct* graphic, double scale) {
    if (graphic) Graphic::From(graphic)->content.penScale = scale;
}

void GraphicSetScaleSystem(GraphicStruct* graphic, int system) {
    if (graphic) Graphic::From(graphic)->content.scaleSystem = static_cast<uint32_t>(system);
}

void GraphicSetPenWidth(GraphicStruct* graphic, double width) {
    if (graphic) Graphic::From(graphic)->content.penWidth = width;
}

void GraphicSetBrushStyle(GraphicStruct* graphic, uint16_t style) {
    if (graphic) Graphic::From(graphic)->content.brushStyle = style;
}

void GraphicSetBrushColor(GraphicStruct* graphic, uint32_t color) {
    if (graphic) Graphic::From(graphic)->content.brushColor = color;
}

void GraphicSetBrushScale(GraphicStruct* graphic, double scale) {
    if (graphic) Graphic::From(graphic)->content.brushScale = scale;
}

// ---- Vertices

VertexStruct* VertexNewEx(double x, double y, double z) {
    auto* vertex = new (std::nothrow) VertexStruct{};
    if (!vertex) return nullptr;
    vertex->wFlags = kVertexDrawn;
    ::VertexSet(vertex, x, y, z);
    return vertex;
}

VertexStruct* VertexNewFromEx(VertexStruct* from) {
    VertexStruct* vertex = ::VertexNewEx(0, 0, 0);
    if (vertex && from) *vertex = *from;
    return vertex;
}

// A host with undo would record the change of the vertex's graphic here.
void VertexSet(VertexStruct* vertex, double x, double y, double z) {
    if (!vertex) return;
    vertex->x = x;
    vertex->y = y;
    vertex->z = z;
}

void VertexDispose(VertexStruct** vertex) {
    if (!vertex) return;
    delete *vertex;
    *vertex = nullptr;
}

int GraphicVertexAdd(GraphicStruct* graphic, VertexStruct* vertex) {
    if (!graphic || !vertex || graphic->bType != kGraphicVertices) return 0;
    Graphic::From(graphic)->content.vertices.push_back(*vertex);
    return 1;
}

VertexStruct* GraphicVertexFirst(GraphicStruct* graphic, int* cookie, int, int) {
    if (!graphic || !cookie) return nullptr;
    *cookie = 0;
    return VertexAt(graphic, cookie);
}

VertexStruct* GraphicVertexNext(GraphicStruct* graphic, int* cookie, int, int) {
    return graphic && cookie ? VertexAt(graphic, cookie) : nullptr;
}
