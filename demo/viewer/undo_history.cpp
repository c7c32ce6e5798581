// Undo steps of the database and of the viewer in chronological order.

#include "demo/viewer/undo_history.h"

#include <algorithm>
#include <utility>

void UndoHistory::Add(Step step) {
    m_done.push_back(std::move(step));
    m_undone.clear();
}

void UndoHistory::Trim(int undoable, int redoable) {
    TrimTo(m_done, undoable);
    TrimTo(m_undone, redoable);
}

// The database can have additional steps to redo, which were undone before a step of the viewer.
void UndoHistory::TrimTo(Steps& steps, int databaseSteps) {
    const auto excess = [&] { return std::count(steps.begin(), steps.end(), nullptr) - databaseSteps; };
    for (auto dropped = excess(); dropped > 0; dropped = excess())
        steps.erase(steps.begin(), std::next(std::find(steps.begin(), steps.end(), nullptr)));
}

const UndoableChange* UndoHistory::Undo(const std::function<void()>& inDatabase) {
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    const UndoHistory::Step& step = m_undone.back();
    step ? step->Undo() : inDatabase();
    return step.get();
}

const UndoableChange* UndoHistory::Redo(const std::function<void()>& inDatabase) {
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    const UndoHistory::Step& step = m_done.back();
    step ? step->Redo() : inDatabase();
    return step.get();
}
