#include "drawcore/src/database/undo.h"

#include "drawcore/include/drawcore/undo.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

UndoLog::UndoLog() = default;
UndoLog::~UndoLog() = default;

bool UndoLog::Begin() {
    if (open_) return false;
    steps_.emplace_back();
    return open_ = true;
}

int UndoLog::End() {
    if (!open_) return 0;
    open_ = false;
    Step& step = steps_.back();
    for (auto at = step.begin(); at != step.end();)
        at = at->first->EqualState(*at->second) ? step.erase(at) : ++at;
    const int changed = static_cast<int>(step.size());
    if (!changed) steps_.pop_back();
    return changed;
}

int UndoLog::Undo() {
    if (open_ || steps_.empty()) return 0;
    const Step step = std::move(steps_.back());
    steps_.pop_back();
    for (const auto& [graphic, saved] : step) {
        graphic->Restore(*saved);
        graphic->ChangedShape();
    }
    return static_cast<int>(step.size());
}

void UndoLog::Save(Graphic& graphic) {
    std::unique_ptr<Graphic>& saved = steps_.back()[&graphic];
    if (saved) return;
    saved = graphic.CloneState();
    graphic.inUndoLog_ = true;
}

void UndoLog::Forget(Graphic& graphic) {
    for (Step& step : steps_)
        step.erase(&graphic);
}

} // namespace drawcore

using drawcore::Drawing;

int DrawingBeginUndo(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    return found && found->Undo().Begin();
}

int DrawingEndUndo(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    return found ? found->Undo().End() : 0;
}

int DrawingUndo(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    return found ? found->Undo().Undo() : 0;
}

int DrawingCountUndo(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    return found ? static_cast<int>(found->Undo().Steps()) : 0;
}
