// Functions of drawcore/include for undo and redo.

#include <functional>
#include <type_traits>

#include "drawcore/include/drawcore/undo.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/undo_log.h"

using drawcore::Drawing;
using drawcore::UndoLog;

namespace {

// Calls a method of the undo log. Returns 0 if there is no such drawing.
template <class Method>
auto CallUndoLog(DrawingStruct* drawing, Method method) -> std::invoke_result_t<Method, UndoLog&> {
    Drawing* found = Drawing::Find(drawing);
    if (!found) return {};
    return std::invoke(method, found->Undo());
}

} // namespace

int DrawingBeginUndo(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::Begin);
}

int DrawingEndUndo(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::End);
}

int DrawingCancelUndo(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::Cancel);
}

int DrawingUndo(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::Undo);
}

int DrawingRedo(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::Redo);
}

int DrawingCountUndo(DrawingStruct* drawing) {
    return static_cast<int>(CallUndoLog(drawing, &UndoLog::Steps));
}

int DrawingCountRedo(DrawingStruct* drawing) {
    return static_cast<int>(CallUndoLog(drawing, &UndoLog::UndoneSteps));
}

int DrawingCountDroppedUndo(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::Dropped);
}

uint32_t DrawingGetUndoMark(DrawingStruct* drawing) {
    return CallUndoLog(drawing, &UndoLog::Mark);
}

void DrawingSetUndoLimit(DrawingStruct* drawing, size_t bytes) {
    if (Drawing* found = Drawing::Find(drawing)) found->Undo().SetMemoryLimit(bytes);
}

void DrawingSetChangeListener(DrawingStruct* drawing, const ChangeListener* listener) {
    if (Drawing* found = Drawing::Find(drawing)) found->Undo().SetListener(listener ? *listener : ChangeListener{});
}
