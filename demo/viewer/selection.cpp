// The selected graphics of an open drawing.

#include "demo/viewer/selection.h"

#include <new>
#include <utility>

#include "drawcore/view.h"
#include "orlo/host/viewport.h"
#include "orlo/host/walk.h"

std::optional<WorldBox> ExtentsOf(GraphicStruct* graphic) {
    double box[4];
    if (!::ExtentsGetBox(::GraphicGetExtentsSel(graphic, 0), box)) return std::nullopt;
    return WorldBox{box[0], box[1], box[2], box[3]};
}

Selection::Selection() : m_set(::SelectionNew()) {
    if (!m_set) throw std::bad_alloc();
}

Selection::Selection(const Selection& other) : Selection() {
    for (GraphicStruct* graphic : other.Members())
        ::SelectionAdd(Set(), graphic);
}

std::vector<GraphicStruct*> Selection::Members() const {
    std::vector<GraphicStruct*> members;
    for (GraphicStruct* graphic : orlo::host::Members(Set()))
        members.push_back(graphic);
    return members;
}

void Selection::Clear() {
    for (GraphicStruct* graphic : Members())
        AddToChanged(graphic);
    ::SelectionClear(Set());
}

void Selection::Apply(const std::vector<GraphicStruct*>& graphics, Operation operation) {
    if (operation == Operation::Replace) Clear();
    for (GraphicStruct* graphic : graphics) {
        if (::SelectionAdd(Set(), graphic) || (operation == Operation::Toggle && ::SelectionRemove(Set(), graphic)))
            AddToChanged(graphic);
    }
}

void Selection::AddToChanged(GraphicStruct* graphic) {
    const std::optional<WorldBox> box = ExtentsOf(graphic);
    if (!box) return;
    m_changed = m_changed ? WorldBox::Around(*m_changed, *box) : *box;
}

std::optional<WorldBox> Selection::TakeChanged() {
    return std::exchange(m_changed, std::nullopt);
}
