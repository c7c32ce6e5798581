// Requirements of graphics: creation, ownership, copies, iteration, attributes.

#include "requirement.h"

namespace {

GraphicStruct* OwnerOf(const GraphicStruct* graphic) {
    return graphic->dwFlags & kFlagNoParent ? nullptr : graphic->pParent;
}

template <class Value>
Value Read(const Subject& s, GraphicStruct* graphic, const char* name, int vt) {
    const PropertyTable* table = CALL(s.host, GraphicGetVtbl)(graphic);
    int32_t number = 0;
    Value value{};
    Require(table && table->PropLookup(graphic, &name, 1, 0, &number), "the graphic has no property %s", name);
    Require(table->PropGet(graphic, number, vt, &value), "%s: PropGet returned 0", name);
    return value;
}

void CreatesTheThreeTypes(const Subject& s) {
    for (const int type : {kGraphicVertices, kGraphicText, kGraphicInsert}) {
        const auto graphic = s.NewGraphic(type);
        Require(graphic->bType == type, "bType is 0x%02X instead of 0x%02X", graphic->bType, type);
        Require(!OwnerOf(graphic.get()), "a new graphic has an owner");
        Require(graphic->wRegenMethod == 0, "a new graphic has regen method %u", graphic->wRegenMethod);
    }
}

void ClearsThePointer(const Subject& s) {
    GraphicStruct* graphic = s.NewGraphic(kGraphicText).release();
    CALL(s.host, GraphicDispose)(&graphic);
    Require(!graphic, "the pointer is %p afterward", static_cast<void*>(graphic));
}

void OwnsWhatIsAdded(const Subject& s) {
    const auto group = s.NewGraphic(kGraphicVertices);
    GraphicStruct* child = s.NewSquare(1).release();
    Require(CALL(s.host, GraphicAdd)(group.get(), child) == child, "did not return the child");
    Require(OwnerOf(child) == group.get(), "pParent of the child is not the parent, or kFlagNoParent is set");
    Require(s.Members(group.get()) == std::vector<GraphicStruct*>{child}, "the child is not a member of the parent");
}

void ReleasesWhatIsDeleted(const Subject& s) {
    const auto group = s.NewGraphic(kGraphicVertices);
    auto child = s.NewSquare(1);
    GraphicStruct* added = CALL(s.host, GraphicAdd)(group.get(), child.get());
    if (!added) return; // covered by the requirement of GraphicAdd
    CALL(s.host, GraphicDelete)(group.get(), added);
    Require(s.Members(group.get()).empty(), "the child is still a member");
    Require(child->bType == kGraphicVertices && !OwnerOf(child.get()), "the child still has an owner");
    Require(s.Vertices(child.get()).size() == 5, "the child no longer has its vertices");
}

void ReturnsMembersInOrder(const Subject& s) {
    const auto group = s.NewGraphic(kGraphicVertices);
    std::vector<GraphicStruct*> added;
    for (int i = 0; i < 5; ++i)
        added.push_back(CALL(s.host, GraphicAdd)(group.get(), s.NewSquare(1).release()));
    for (const uint32_t filter : {kAllGraphics, kWithStylePart})
        Require(s.Members(group.get(), filter) == added,
                "with filter 0x%X, returned %zu of 5 members, or all in a different order", filter,
                s.Members(group.get(), filter).size());
    Require(s.Members(s.NewSquare(1).get()).empty(), "returned members of a graphic that has none");
}

void KeepsItsStateInThePosition(const Subject& s) {
    const auto set = s.NewGraphic(kGraphicVertices), other = s.NewGraphic(kGraphicVertices);
    for (int i = 0; i < 3; ++i) {
        CALL(s.host, GraphicAdd)(set.get(), s.NewSquare(1).release());
        CALL(s.host, GraphicAdd)(other.get(), s.NewSquare(1).release());
    }
    const auto alone = s.Members(set.get());
    std::vector<GraphicStruct*> nested;
    uint32_t position;
    for (GraphicStruct* member = CALL(s.host, GraphicFirst)(set.get(), &position, 1, kAllGraphics);
         member && nested.size() <= alone.size();
         member = CALL(s.host, GraphicNext)(set.get(), &position, 1, kAllGraphics)) {
        nested.push_back(member);
        Require(s.Members(set.get()) == alone, "a nested iteration returned different members");
        s.Members(other.get());
    }
    Require(nested == alone, "returned %zu of %zu members with other iterations between the calls", nested.size(),
            alone.size());
}

Owned<GraphicStruct> Copy(const Subject& s, const Owned<GraphicStruct>& original) {
    Owned<GraphicStruct> copy(CALL(s.host, GraphicCopyEx)(original.get(), 0, 0, 7), original.get_deleter());
    RequireNoStub(copy != nullptr, "GraphicCopyEx");
    return copy;
}

void CopiesWithMembers(const Subject& s) {
    const auto original = s.NewSquare(1);
    CALL(s.host, GraphicSetPenColor)(original.get(), 0x123456);
    CALL(s.host, GraphicAdd)(original.get(), s.NewSquare(2).release());
    const auto copy = Copy(s, original);
    Require(copy.get() != original.get(), "returned the graphic itself");
    Require(copy->bType == original->bType && !OwnerOf(copy.get()),
            "the copy has a different type, or it has an owner");
    Require(Read<uint32_t>(s, copy.get(), kPropPenColor, VT_UI4) == 0x123456, "the copy has a different pen color");
    Require(s.Vertices(copy.get()).size() == 5, "the copy has %zu of 5 vertices", s.Vertices(copy.get()).size());
    const auto parts = s.Members(copy.get());
    Require(parts.size() == 1 && parts != s.Members(original.get()), "the copy has %zu new members instead of 1",
            parts.size());
    CALL(s.host, GraphicSetPenColor)(copy.get(), 0);
    Require(Read<uint32_t>(s, original.get(), kPropPenColor, VT_UI4) == 0x123456,
            "changing the copy changed the original");
}

void AttachesToADrawing(const Subject& s) {
    const auto graphic = s.NewGraphic(kGraphicVertices);
    GraphicStruct* part = CALL(s.host, GraphicAdd)(graphic.get(), s.NewGraphic(kGraphicVertices).release());
    CALL(s.host, GraphicAttach)(graphic.get(), s.Drawing());
    Require(CALL(s.host, GraphicGetDrawing)(graphic.get()) == s.Drawing(),
            "GraphicGetDrawing returned a different drawing");
    Require(CALL(s.host, GraphicGetDrawing)(part) == s.Drawing(), "a member of the graphic is not attached");
    CALL(s.host, GraphicAttach)(graphic.get(), nullptr);
    Require(!CALL(s.host, GraphicGetDrawing)(graphic.get()), "null did not detach the graphic");
}

void DetectsGroups(const Subject& s) {
    Require(!CALL(s.host, GraphicGetIsGroup)(s.NewSquare(1).get()), "a vertex list is reported as a group");
    const auto set = s.NewGraphic(kGraphicVertices);
    CALL(s.host, GraphicAdd)(set.get(), s.NewSquare(1).release());
    RequireNoStub(CALL(s.host, GraphicGetIsGroup)(Copy(s, set).get()), "GraphicGetIsGroup");
}

void AcceptsDirtyMarks(const Subject& s) {
    const auto square = s.NewSquare(1);
    for (const int dirty : {1, 0}) {
        CALL(s.host, GraphicSetDirty)(square.get(), dirty);
        CALL(s.host, GraphicSetExtentsDirty)(square.get(), dirty);
    }
    Require(s.Vertices(square.get()).size() == 5, "the vertices have changed");
}

// Sets an attribute and reads it as a property.
template <class Value, class Argument>
void Sets(const Subject& s, void (*call)(GraphicStruct*, Argument), const char* name, int vt, Value value) {
    const auto square = s.NewSquare(1);
    const auto before = Read<Value>(s, square.get(), name, vt);
    call(square.get(), static_cast<Argument>(value));
    const auto found = Read<Value>(s, square.get(), name, vt);
    if (found == before) s.NewViewport(); // without viewports the function can be a stub
    Require(found == value, "%s is %g instead of %g", name, static_cast<double>(found), static_cast<double>(value));
}

#define SETS(name, property, vt, value)                                                                                \
    {                                                                                                                  \
#name, "sets the property " #property,                                                                         \
            [](const Subject& s) { Sets(s, CALL(s.host, name), property, vt, value); }                                 \
    }

const Requirement kRows[] = {
    {"GraphicNewEx", "creates texts, vertex lists and insertions without an owner", CreatesTheThreeTypes},
    {"GraphicDispose", "sets the pointer to null", ClearsThePointer},
    {"GraphicAdd", "returns the child, which the parent then owns", OwnsWhatIsAdded},
    {"GraphicDelete", "removes the child without changing it", ReleasesWhatIsDeleted},
    {"GraphicFirst", "and GraphicNext return all members in the order of GraphicAdd", ReturnsMembersInOrder},
    {"GraphicNext", "stores the position only in the caller's 32 bits", KeepsItsStateInThePosition},
    {"GraphicCopyEx", "copies a graphic with its attributes, vertices and members", CopiesWithMembers},
    {"GraphicAttach", "attaches a graphic and its members; null detaches them", AttachesToADrawing},
    {"GraphicGetIsGroup", "returns 0 for a vertex list and non-zero for the copy of a set", DetectsGroups},
    {"GraphicSetDirty", "and GraphicSetExtentsDirty do not change the graphic", AcceptsDirtyMarks},
    SETS(GraphicSetPenColor, kPropPenColor, VT_UI4, 0x123456u),
    SETS(GraphicSetPenStyle, kPropPenStyle, VT_UI4, static_cast<uint32_t>(kLineStyleByBlock)),
    SETS(GraphicSetPenScale, kPropPenScale, VT_R8, 2.5),
    SETS(GraphicSetScaleSystem, kPropScaleSystem, VT_UI2, static_cast<uint16_t>(kScaleWorld)),
    SETS(GraphicSetPenWidth, kPropPenWidth, VT_R8, 0.25),
    SETS(GraphicSetBrushStyle, kPropBrushStyle, VT_UI4, 1u),
    SETS(GraphicSetBrushColor, kPropBrushColor, VT_UI4, 0x123456u),
    SETS(GraphicSetBrushScale, kPropBrushScale, VT_R8, 2.5),
};

} // namespace

const Topic kGraphicRequirements = TopicOf(kRows);
