// The undo log of a drawing: what its graphics were before each step. A step keeps what it changes: the look of a graphic
// whose properties change, shared with all that looked the same, and the whole state of one whose shape is about to change.
// Graphics that only show something (previews, samples) are not part of the drawing and not saved.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <unordered_set>
#include <vector>

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
    int Undo();   // reverts the last step; number of graphics changed back, 0 without a step
    size_t Steps() const { return steps_.size() - (open_ ? 1 : 0); }

    void SetRoom(size_t bytes) { room_ = bytes; }
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
        std::vector<Saved> saved; // by address of the graphics, once the step is closed
        std::unordered_set<Look, LookHash> looks;
        size_t size = 0; // bytes

        Saved* Find(const Graphic& graphic);
        void Close();
    };

    Saved* InOpenStep(const Graphic& graphic);
    Saved& Add(Graphic& graphic);
    void MakeRoom();

    std::deque<Step> steps_;
    bool open_ = false;
    size_t room_ = size_t{256} << 20;
    int dropped_ = 0;
};

} // namespace drawcore
