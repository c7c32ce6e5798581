// Noting what a step changes, and putting it back.
#include "drawcore/src/database/undo.h"

#include <algorithm>
#include <functional>

#include "drawcore/include/drawcore/undo.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

UndoLog::UndoLog() = default;
UndoLog::~UndoLog() = default;

bool UndoLog::Saved::IsDifferentNow() const {
    return state ? !graphic->EqualState(*state) : !graphic->GetLook().HasSameProperties(*look);
}

void UndoLog::Saved::Restore() const {
    if (state)
        graphic->Restore(*state);
    else
        graphic->SetLook(*look);
    graphic->ChangedShape();
}

// Drops what has not changed, and what is no longer needed once nothing is added.
void UndoLog::Step::Close() {
    const auto isSame = [](const Saved& entry) { return !entry.IsDifferentNow(); };
    saved.erase(std::remove_if(saved.begin(), saved.end(), isSame), saved.end());
    saved.shrink_to_fit();
    std::sort(saved.begin(), saved.end(),
              [](const Saved& a, const Saved& b) { return std::less<>()(a.graphic, b.graphic); });
    constexpr size_t kNode =
        sizeof(Look) + 4 * sizeof(void*); // of the set, with its share of buckets and heap
    size = saved.size() * sizeof(Saved) + looks.size() * kNode;
    for (const Saved& entry : saved)
        if (entry.state) size += entry.state->StateSize();
    for (const Look& look : looks)
        size += look.info.size();
}

UndoLog::Saved* UndoLog::Step::Find(const Graphic& graphic) {
    const auto found =
        std::lower_bound(saved.begin(), saved.end(), &graphic, [](const Saved& entry, const Graphic* key) {
            return std::less<const Graphic*>()(entry.graphic, key);
        });
    return found != saved.end() && found->graphic == &graphic ? &*found : nullptr;
}

bool UndoLog::Begin() {
    if (open_) return false;
    steps_.emplace_back();
    return open_ = true;
}

int UndoLog::End() {
    if (!open_) return 0;
    open_ = false;
    Step& step = steps_.back();
    step.Close();
    const int changed = static_cast<int>(step.saved.size());
    if (!changed) steps_.pop_back();
    MakeRoom();
    return changed;
}

void UndoLog::MakeRoom() {
    size_t whole = 0;
    for (const Step& step : steps_)
        whole += step.size;
    for (dropped_ = 0; whole > room_ && steps_.size() > 1; ++dropped_) {
        whole -= steps_.front().size;
        steps_.pop_front();
    }
}

int UndoLog::Undo() {
    if (open_ || steps_.empty()) return 0;
    const Step step = std::move(steps_.back());
    steps_.pop_back();
    int restored = 0;
    for (const Saved& entry : step.saved) {
        if (entry.IsGone()) continue;
        entry.Restore();
        ++restored;
    }
    return restored;
}

UndoLog::Saved* UndoLog::InOpenStep(const Graphic& graphic) {
    std::vector<Saved>& saved = steps_.back().saved;
    const size_t place = graphic.undoPlace_;
    return place < saved.size() && saved[place].graphic == &graphic ? &saved[place] : nullptr;
}

UndoLog::Saved& UndoLog::Add(Graphic& graphic) {
    std::vector<Saved>& saved = steps_.back().saved;
    graphic.undoPlace_ = static_cast<uint32_t>(saved.size());
    graphic.inUndoLog_ = true;
    return saved.emplace_back(Saved{&graphic, nullptr, nullptr});
}

void UndoLog::SaveLook(Graphic& graphic) {
    if (InOpenStep(graphic)) return;
    const Look* look = &*steps_.back().looks.insert(graphic.GetLook()).first;
    Add(graphic).look = look;
}

void UndoLog::SaveState(Graphic& graphic) {
    Saved* entry = InOpenStep(graphic);
    if (entry && entry->state) return;
    std::unique_ptr<Graphic> state = graphic.CloneState();
    if (!entry) entry = &Add(graphic);
    if (entry->look) state->SetLook(*entry->look); // as it was before the step
    entry->look = nullptr;
    entry->state = std::move(state);
}

void UndoLog::Remove(Graphic& graphic) {
    if (open_)
        if (Saved* entry = InOpenStep(graphic)) {
            std::vector<Saved>& saved = steps_.back().saved;
            if (entry != &saved.back()) {
                *entry = std::move(saved.back());
                entry->graphic->undoPlace_ = graphic.undoPlace_;
            }
            saved.pop_back();
        }
    for (size_t i = 0; i < Steps(); ++i)
        if (Saved* entry = steps_[i].Find(graphic)) {
            entry->look = nullptr;
            entry->state.reset();
        }
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

int DrawingCountForgotten(DrawingStruct* drawing) {
    Drawing* found = Drawing::Find(drawing);
    return found ? found->Undo().Dropped() : 0;
}

void DrawingSetUndoRoom(DrawingStruct* drawing, size_t bytes) {
    if (Drawing* found = Drawing::Find(drawing)) found->Undo().SetRoom(bytes);
}
