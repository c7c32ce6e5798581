// Graphics: making, owning, copying and walking them, and their attributes.

#include <cstring>

#include "promise.h"

namespace {

GraphicStruct* OwnerOf(const GraphicStruct* graphic) {
    return graphic->dwFlags & kFlagNoParent ? nullptr : graphic->pParent;
}

template <class Value>
Value Read(const Subject& s, GraphicStruct* graphic, const char* name, int vt) {
    const PropertyTable* table = CALL(s.host, GraphicGetVtbl)(graphic);
    int32_t number = 0;
    Value value{};
    Expect(table && table->PropLookup(graphic, &name, 1, 0, &number), "there is no property %s", name);
    Expect(table->PropGet(graphic, number, vt, &value), "%s: PropGet gave 0", name);
    return value;
}

void MakesTheThreeTypes(const Subject& s) {
    for (const int type : {kGraphicText, kGraphicVertices, kGraphicInsert}) {
        const auto graphic = s.NewGraphic(type);
        Expect(graphic->bType == type, "bType is 0x%02X for 0x%02X", graphic->bType, type);
        Expect(!OwnerOf(graphic.get()), "a new graphic has an owner");
        Expect(graphic->wRegenMethod == 0, "a new graphic has regen method %u", graphic->wRegenMethod);
    }
}

void ClearsThePointer(const Subject& s) {
    GraphicStruct* graphic = s.NewGraphic(kGraphicText).release();
    CALL(s.host, GraphicDispose)(&graphic);
    Expect(!graphic, "left %p", static_cast<void*>(graphic));
}

void OwnsWhatIsAdded(const Subject& s) {
    const auto group = s.NewGraphic(kGraphicVertices);
    GraphicStruct* child = s.NewSquare(1).release();
    Expect(CALL(s.host, GraphicAdd)(group.get(), child) == child, "did not give the child");
    Expect(OwnerOf(child) == group.get(), "pParent of the child is not the owner, or kFlagNoParent is set");
    Expect(s.Members(group.get()) == std::vector<GraphicStruct*>{child}, "the child is no member");
}

void ReleasesWhatIsDeleted(const Subject& s) {
    const auto group = s.NewGraphic(kGraphicVertices);
    auto child = s.NewSquare(1);
    GraphicStruct* added = CALL(s.host, GraphicAdd)(group.get(), child.get());
    if (!added) return; // another promise
    CALL(s.host, GraphicDelete)(group.get(), added);
    Expect(s.Members(group.get()).empty(), "the child is still a member");
    Expect(child->bType == kGraphicVertices && !OwnerOf(child.get()), "the child still has an owner");
    Expect(s.Vertices(child.get()).size() == 5, "the child has lost its vertices");
}

void WalksInTheOrderOfAdding(const Subject& s) {
    const auto group = s.NewGraphic(kGraphicVertices);
    std::vector<GraphicStruct*> added;
    for (int i = 0; i < 5; ++i)
        added.push_back(CALL(s.host, GraphicAdd)(group.get(), s.NewSquare(1).release()));
    for (const uint32_t filter : {kAllGraphics, kWithStylePart})
        Expect(s.Members(group.get(), filter) == added,
               "with filter 0x%X %zu of 5 members came, or in another order", filter,
               s.Members(group.get(), filter).size());
    Expect(s.Members(s.NewSquare(1).get()).empty(), "a graphic without parts has members");
}

void CopiesWithItsParts(const Subject& s) {
    const auto original = s.NewSquare(1);
    CALL(s.host, GraphicSetPenColor)(original.get(), 0x123456);
    CALL(s.host, GraphicAdd)(original.get(), s.NewSquare(2).release());
    Made<GraphicStruct> copy(CALL(s.host, GraphicCopyEx)(original.get(), 0, 0, 7), original.get_deleter());
    Expect(copy && copy.get() != original.get(), "gave no copy");
    Expect(copy->bType == original->bType && !OwnerOf(copy.get()), "the copy has another type, or an owner");
    Expect(Read<uint32_t>(s, copy.get(), kPropPenColor, VT_UI4) == 0x123456, "the copy has another pen");
    Expect(s.Vertices(copy.get()).size() == 5, "the copy has %zu of 5 vertices",
           s.Vertices(copy.get()).size());
    const auto parts = s.Members(copy.get());
    Expect(parts.size() == 1 && parts != s.Members(original.get()), "the copy has %zu parts of its own",
           parts.size());
    CALL(s.host, GraphicSetPenColor)(copy.get(), 0);
    Expect(Read<uint32_t>(s, original.get(), kPropPenColor, VT_UI4) == 0x123456,
           "a change of the copy has changed the original");
}

void TiesToADrawing(const Subject& s) {
    const auto graphic = s.NewGraphic(kGraphicVertices);
    GraphicStruct* part = CALL(s.host, GraphicAdd)(graphic.get(), s.NewGraphic(kGraphicVertices).release());
    CALL(s.host, GraphicAttach)(graphic.get(), s.drawing);
    Expect(CALL(s.host, GraphicGetDrawing)(graphic.get()) == s.drawing, "GraphicGetDrawing gave another one");
    Expect(CALL(s.host, GraphicGetDrawing)(part) == s.drawing, "a part of the graphic has stayed behind");
    CALL(s.host, GraphicAttach)(graphic.get(), nullptr);
    Expect(!CALL(s.host, GraphicGetDrawing)(graphic.get()), "null did not untie it");
}

void TellsGroups(const Subject& s) {
    Expect(!CALL(s.host, GraphicGetIsGroup)(s.NewSquare(1).get()), "a list of vertices is a group");
}

void BearsMarks(const Subject& s) {
    const auto square = s.NewSquare(1);
    for (const int dirty : {1, 0}) {
        CALL(s.host, GraphicSetDirty)(square.get(), dirty);
        CALL(s.host, GraphicSetExtentsDirty)(square.get(), dirty);
    }
    Expect(s.Vertices(square.get()).size() == 5, "the vertices have changed");
}

// One call sets what the property of that name then gives.
template <class Value, class Argument>
void Sets(const Subject& s, void (*call)(GraphicStruct*, Argument), const char* name, int vt, Value value) {
    const auto square = s.NewSquare(1);
    call(square.get(), static_cast<Argument>(value));
    const auto found = Read<Value>(s, square.get(), name, vt);
    Expect(found == value, "%s is %g for %g", name, static_cast<double>(found), static_cast<double>(value));
}

#define SETS(name, property, vt, value)                                                                      \
    {                                                                                                        \
#name, "sets what the property " #property " gives",                                                 \
            [](const Subject& s) { Sets(s, CALL(s.host, name), property, vt, value); }                       \
    }

const Promise kRows[] = {
    {"GraphicNewEx", "makes texts, vertex lists and insertions that belong to nobody", MakesTheThreeTypes},
    {"GraphicDispose", "clears the pointer", ClearsThePointer},
    {"GraphicAdd", "gives the child, which then has the parent as its owner", OwnsWhatIsAdded},
    {"GraphicDelete", "takes the child out and leaves it whole", ReleasesWhatIsDeleted},
    {"GraphicFirst", "and GraphicNext give all members, in the order of adding", WalksInTheOrderOfAdding},
    {"GraphicCopyEx", "copies a graphic with its look, its vertices and its parts", CopiesWithItsParts},
    {"GraphicAttach", "ties a graphic with its parts to a drawing, and null unties it", TiesToADrawing},
    {"GraphicGetIsGroup", "gives 0 for a list of vertices", TellsGroups},
    {"GraphicSetDirty", "and GraphicSetExtentsDirty leave the graphic as it is", BearsMarks},
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

const Topic kGraphicPromises = TopicOf(kRows);
