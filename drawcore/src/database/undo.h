// The undo log of a drawing: what its graphics were before each step. A graphic is saved whole when it is changed for the
// first time within a step; graphics that only show something (previews, samples) are not part of the drawing and not saved.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

namespace drawcore {

class Graphic;

class UndoLog {
public:
    UndoLog();
    ~UndoLog();

    bool IsOpen() const { return open_; }
    bool Begin(); // false if a step is open already
    int End();    // number of graphics that are different now; a step without any is dropped
    int Undo();   // takes back the last step; number of graphics changed back, 0 without a step
    size_t Steps() const { return steps_.size() - (open_ ? 1 : 0); }

    void Save(Graphic& graphic);   // about to change
    void Forget(Graphic& graphic); // about to go

private:
    using Step = std::unordered_map<Graphic*, std::unique_ptr<Graphic>>;
    std::vector<Step> steps_;
    bool open_ = false;
};

} // namespace drawcore
