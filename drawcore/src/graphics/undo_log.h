// The undo log of a drawing: the state of its graphics before each step, and after each undone step. A step stores the
// appearance of a graphic whose properties change, shared between equal graphics, and the complete state of a graphic
// whose shape is about to change. Previews and samples are not part of the drawing and not recorded.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <unordered_set>

#include "drawcore/include/drawcore/undo.h"
#include "drawcore/src/graphics/attributes.h"

namespace drawcore {

class Graphic;

class UndoLog {
public:
    UndoLog();
    ~UndoLog();

    bool IsOpen() const { return open_; }
    bool Begin(); // returns false if a step is already open
    int End();    // returns the number of graphics that differ; a step without any is discarded
    int Cancel(); // closes the step and reverts it completely; returns the number of graphics restored
    int Undo();   // reverts the last step; returns the number of graphics restored, 0 without a step
    int Redo();   // redoes the step undone last; returns the number of graphics restored, 0 without a step
    size_t Steps() const { return steps_.size() - (open_ ? 1 : 0); }
    size_t UndoneSteps() const { return undone_.size(); }
    uint32_t Mark() const; // identifies the state; each state in the lifetime of the drawing has a different one

    void SetMemoryLimit(size_t bytes) { memoryLimit_ = bytes; }
    void SetListener(const ChangeListener& listener) { listener_ = listener; }
    int Dropped() const { return dropped_; } // number of steps discarded by the last End for lack of memory

    void SaveAppearance(Graphic& graphic); // called before properties are set
    void SaveState(Graphic& graphic);      // called before any other change
    void Remove(Graphic& graphic);         // called before it is freed

private:
    struct Saved {
        Graphic* graphic;
        const Appearance* appearance = nullptr; // at most one of these is set; neither after the graphic was removed
        std::unique_ptr<Graphic> state;

        bool IsRemoved() const { return !appearance && !state; }
        bool HasChanged() const;
        void Restore() const;
    };
    struct Step {
        std::deque<Saved> saved;
        bool sorted = false; // by address of the graphics; never while the step is open
        std::unordered_set<Appearance, AppearanceHash> appearances;
        std::array<const Appearance*, 64> recent{}; // of these, where a graphic with that appearance is expected
        size_t size = 0;                            // in bytes
        uint32_t mark = 0;                          // of the resulting state

        Saved* Find(const Graphic& graphic);
        void Add(Graphic& graphic);
        const Appearance* StoreAppearance(const Graphic& graphic);
        void RemoveGraphic(const Graphic& graphic);
        void Close();
        Step CurrentState() const; // the current state of the same graphics
        int Restore() const;       // returns the number of graphics
    };

    Saved* InOpenStep(const Graphic& graphic);
    void AddToStep(Graphic& graphic); // adds it to the open step
    void NotifyListener() const;
    int RestoreStep(std::deque<Step>& from, std::deque<Step>& to);
    void EnforceLimit();

    std::deque<Step> steps_;
    std::deque<Step> undone_; // the last one is redone next
    bool open_ = false;
    size_t memoryLimit_ = size_t{256} << 20;
    int dropped_ = 0;
    uint32_t firstMark_ = 0; // of the state before the first remaining step
    uint32_t lastMark_ = 0;
    ChangeListener listener_{};
};

} // namespace drawcore
