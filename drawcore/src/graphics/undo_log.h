// The undo log of a drawing: what its graphics were before each step, and after each step that was undone. A step keeps
// what it changes: the look of a graphic whose properties change, shared with all that looked the same, and the whole
// state of one whose shape is about to change. Graphics that only show something (previews, samples) are not part of
// the drawing and not saved.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <unordered_set>
#include <vector>

#include "drawcore/include/drawcore/undo.h"
#include "drawcore/src/graphics/attributes.h"

namespace drawcore {

class Graphic;

class UndoLog {
public:
    UndoLog();
    ~UndoLog();

    bool IsOpen() const { return open_; }
    bool Begin(); // false if a step is open already
    int End();    // number of graphics that are different now; a step without any is dropped
    int Cancel(); // closes the step and reverts it, as if it had never been; number of graphics changed back
    int Undo();   // reverts the last step; number of graphics changed back, 0 without a step
    int Redo();   // makes the step again that was undone last; likewise
    size_t Steps() const { return steps_.size() - (open_ ? 1 : 0); }
    size_t UndoneSteps() const { return undone_.size(); }
    uint32_t Mark() const; // of the state; no two states of the drawing's life have the same

    void SetRoom(size_t bytes) { room_ = bytes; }
    void SetListener(const ChangeListener& listener) { listener_ = listener; }
    int Dropped() const { return dropped_; } // steps that the last End has dropped for lack of room

    void SaveLook(Graphic& graphic);  // other properties are about to be set
    void SaveState(Graphic& graphic); // anything is about to change
    void Remove(Graphic& graphic);    // about to be freed

private:
    struct Saved {
        Graphic* graphic;
        const Look* look = nullptr; // one of these; neither once the graphic itself is gone
        std::unique_ptr<Graphic> state;

        bool IsGone() const { return !look && !state; }
        bool IsDifferentNow() const;
        void Restore() const;
    };
    struct Step {
        std::deque<Saved> saved;
        bool sorted = false; // by address of the graphics; never as long as the step is open
        std::unordered_set<Look, LookHash> looks;
        std::array<const Look*, 64> recent{}; // of them, where a graphic that looks so is expected
        size_t size = 0;                      // bytes
        uint32_t mark = 0;                    // of the state that it leads to

        Saved* Find(const Graphic& graphic);
        void Add(Graphic& graphic);
        const Look* Take(const Graphic& graphic);
        void Forget(const Graphic& graphic);
        void Close();
        Step Present() const; // what the same graphics are now
        int Restore() const;  // number of graphics
    };

    Saved* InOpenStep(const Graphic& graphic);
    void Enter(Graphic& graphic); // into the open step
    void TellListener() const;
    int Turn(std::deque<Step>& from, std::deque<Step>& to);
    void MakeRoom();

    std::deque<Step> steps_;
    std::deque<Step> undone_; // the last one is the next to be made again
    bool open_ = false;
    size_t room_ = size_t{256} << 20;
    int dropped_ = 0;
    uint32_t firstMark_ = 0; // of the state before the first step that is kept
    uint32_t lastMark_ = 0;
    ChangeListener listener_{};
};

} // namespace drawcore
