// Records the changes of a step, and restores previous states.
#include "drawcore/src/graphics/undo_log.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

UndoLog::UndoLog() = default;
UndoLog::~UndoLog() = default;

bool UndoLog::Saved::HasChanged() const {
    return state ? !graphic->EqualState(*state) : !graphic->HasAppearance(*appearance);
}

void UndoLog::Saved::Restore() const {
    if (state) graphic->Restore(*state);
    if (state || graphic->SetAppearance(*appearance))
        graphic->ChangedShape();
    else
        graphic->ChangedAppearance();
}

// Discards unchanged entries and working memory.
void UndoLog::Step::Close() {
    const auto isSame = [](const Saved& entry) { return !entry.HasChanged(); };
    saved.erase(std::remove_if(saved.begin(), saved.end(), isSame), saved.end());
    constexpr size_t kNode = sizeof(Appearance) + 4 * sizeof(void*); // of the set, including its share of buckets and
                                                                     // heap overhead
    size = saved.size() * sizeof(Saved) + appearances.size() * kNode;
    for (const Saved& entry : saved)
        if (entry.state) size += entry.state->StateSize();
    for (const Appearance& appearance : appearances)
        size += appearance.info.size();
}

UndoLog::Step UndoLog::Step::CurrentState() const {
    Step present;
    present.mark = mark;
    for (const Saved& entry : saved) {
        if (entry.appearance)
            present.Add(*entry.graphic);
        else if (entry.state)
            present.saved.push_back({entry.graphic, nullptr, entry.graphic->CloneState()});
    }
    return present;
}

int UndoLog::Step::Restore() const {
    int restored = 0;
    for (const Saved& entry : saved) {
        if (entry.IsRemoved()) continue;
        entry.Restore();
        ++restored;
    }
    return restored;
}

// Many graphics share an appearance, so one just seen is found with a single comparison.
const Appearance* UndoLog::Step::StoreAppearance(const Graphic& graphic) {
    const size_t key = (graphic.GetPen().color * 5 + graphic.layer) * 3 + static_cast<size_t>(graphic.GetKind());
    const Appearance*& appearance = recent[key % recent.size()];
    if (!appearance || appearance->lastPage != graphic.wLastPage || !graphic.HasAppearance(*appearance))
        appearance = &*appearances.insert(graphic.GetAppearance()).first;
    return appearance;
}

void UndoLog::Step::Add(Graphic& graphic) {
    saved.push_back({&graphic, StoreAppearance(graphic), nullptr});
    sorted = false;
}

// Sorts on demand, because graphics are rarely removed.
UndoLog::Saved* UndoLog::Step::Find(const Graphic& graphic) {
    const std::less<const Graphic*> before;
    if (!std::exchange(sorted, true))
        std::sort(saved.begin(), saved.end(),
                  [&](const Saved& a, const Saved& b) { return before(a.graphic, b.graphic); });
    const auto found =
        std::lower_bound(saved.begin(), saved.end(), &graphic,
                         [&](const Saved& entry, const Graphic* key) { return before(entry.graphic, key); });
    return found != saved.end() && found->graphic == &graphic ? &*found : nullptr;
}

void UndoLog::Step::RemoveGraphic(const Graphic& graphic) {
    Saved* entry = Find(graphic);
    if (!entry) return;
    entry->appearance = nullptr;
    entry->state.reset();
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
    if (changed) {
        step.mark = ++lastMark_;
        undone_.clear();
    } else {
        steps_.pop_back();
    }
    EnforceLimit();
    return changed;
}

int UndoLog::Cancel() {
    if (!open_) return 0;
    open_ = false;
    steps_.back().Close();
    NotifyListener();
    const int restored = steps_.back().Restore();
    steps_.pop_back();
    return restored;
}

// The step undone last is discarded last, because it is the next to redo.
void UndoLog::EnforceLimit() {
    size_t total = 0;
    for (const std::deque<Step>* steps : {&steps_, &undone_})
        for (const Step& step : *steps)
            total += step.size;
    for (; total > memoryLimit_ && undone_.size() > 1; undone_.pop_front())
        total -= undone_.front().size;
    for (dropped_ = 0; total > memoryLimit_ && steps_.size() > 1; ++dropped_) {
        total -= steps_.front().size;
        firstMark_ = steps_.front().mark;
        steps_.pop_front();
    }
}

int UndoLog::RestoreStep(std::deque<Step>& from, std::deque<Step>& to) {
    NotifyListener();
    Step& step = from.back();
    to.push_back(step.CurrentState());
    const int restored = step.Restore();
    to.back().Close();
    from.pop_back();
    return restored;
}

int UndoLog::Undo() {
    if (open_ || steps_.empty()) return 0;
    const int restored = RestoreStep(steps_, undone_);
    EnforceLimit();
    return restored;
}

int UndoLog::Redo() {
    if (open_ || undone_.empty()) return 0;
    const int restored = RestoreStep(undone_, steps_);
    EnforceLimit();
    return restored;
}

uint32_t UndoLog::Mark() const {
    return Steps() ? steps_[Steps() - 1].mark : firstMark_;
}

UndoLog::Saved* UndoLog::InOpenStep(const Graphic& graphic) {
    std::deque<Saved>& saved = steps_.back().saved;
    const size_t index = graphic.GetHostData().undoIndex;
    return index < saved.size() && saved[index].graphic == &graphic ? &saved[index] : nullptr;
}

void UndoLog::AddToStep(Graphic& graphic) {
    graphic.GetHostData().undoIndex = static_cast<uint32_t>(steps_.back().saved.size());
    graphic.inUndoLog_ = true;
}

void UndoLog::SaveAppearance(Graphic& graphic) {
    NotifyListener();
    if (InOpenStep(graphic)) return;
    AddToStep(graphic);
    steps_.back().Add(graphic);
}

void UndoLog::NotifyListener() const {
    if (listener_.changing) listener_.changing(listener_.context);
}

void UndoLog::SaveState(Graphic& graphic) {
    NotifyListener();
    Saved* entry = InOpenStep(graphic);
    if (entry && entry->state) return;
    std::unique_ptr<Graphic> state = graphic.CloneState();
    if (!entry) {
        AddToStep(graphic);
        entry = &steps_.back().saved.emplace_back(Saved{&graphic, nullptr, nullptr});
    }
    if (entry->appearance) state->SetAppearance(*entry->appearance); // as it was before the step
    entry->appearance = nullptr;
    entry->state = std::move(state);
}

void UndoLog::Remove(Graphic& graphic) {
    if (open_)
        if (Saved* entry = InOpenStep(graphic)) {
            std::deque<Saved>& saved = steps_.back().saved;
            if (entry != &saved.back()) {
                *entry = std::move(saved.back());
                entry->graphic->GetHostData().undoIndex = graphic.GetHostData().undoIndex;
            }
            saved.pop_back();
        }
    for (size_t i = 0; i < Steps(); ++i)
        steps_[i].RemoveGraphic(graphic);
    for (Step& step : undone_)
        step.RemoveGraphic(graphic);
}

} // namespace drawcore
