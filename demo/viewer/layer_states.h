// Records the colors and states of all layers of a drawing, and creates an undo step for changes since then.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "demo/viewer/undo_history.h"
#include "orlo/host/records.h"

class LayerStates {
public:
    explicit LayerStates(DrawingStruct* drawing);

    void Restore() const;

    // Returns the change since `before`, or null if nothing has changed. The drawing must outlive the result.
    static std::unique_ptr<UndoableChange> ChangeSince(LayerStates before);

private:
    struct State {
        uint16_t layer;
        uint32_t color;
        uint32_t flags;
        bool operator==(const State& other) const {
            return layer == other.layer && color == other.color && flags == other.flags;
        }
    };

    DrawingStruct* m_drawing;
    std::vector<State> m_states;
};
