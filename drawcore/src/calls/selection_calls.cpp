// Functions of drawcore/include for selections.

#include <new>

#include "drawcore/include/drawcore/selection.h"
#include "drawcore/src/graphics/selection.h"

using drawcore::Graphic;
using drawcore::Selection;

namespace {

Selection* AsSelection(GraphicStruct* set) {
    return set ? dynamic_cast<Selection*>(Graphic::From(set)) : nullptr;
}

} // namespace

GraphicStruct* SelectionNew(void) {
    return new (std::nothrow) Selection;
}

int SelectionAdd(GraphicStruct* set, GraphicStruct* graphic) {
    Selection* selection = AsSelection(set);
    return selection && graphic && selection->Include(Graphic::From(graphic));
}

int SelectionRemove(GraphicStruct* set, GraphicStruct* graphic) {
    Selection* selection = AsSelection(set);
    return selection && graphic && selection->Exclude(Graphic::From(graphic));
}

int SelectionContains(GraphicStruct* set, GraphicStruct* graphic) {
    Selection* selection = AsSelection(set);
    return selection && graphic && selection->Contains(Graphic::From(graphic));
}

void SelectionClear(GraphicStruct* set) {
    if (Selection* selection = AsSelection(set)) selection->Clear();
}

int SelectionCount(GraphicStruct* set) {
    Selection* selection = AsSelection(set);
    return selection ? static_cast<int>(selection->MemberCount()) : 0;
}
