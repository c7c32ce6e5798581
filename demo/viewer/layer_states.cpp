// Recorded states of layers.

#include "demo/viewer/layer_states.h"

#include <utility>

#include "drawcore/layer.h"
#include "orlo/host/drawing.h"
#include "orlo/host/walk.h"

LayerStates::LayerStates(DrawingStruct* drawing) : m_drawing(drawing) {
    for (const uint16_t layer : orlo::host::Entries(::DrawingGetTable(drawing, kTableLayers)))
        m_states.push_back({layer, ::LayerGetColor(drawing, layer), ::LayerGetFlags(drawing, layer)});
}

void LayerStates::Restore() const {
    for (const State& state : m_states)
        ::LayerSet(m_drawing, state.layer, state.color, state.flags, ::LayerGetLineStyle(m_drawing, state.layer));
}

std::unique_ptr<UndoableChange> LayerStates::ChangeSince(LayerStates before) {
    LayerStates now(before.m_drawing);
    if (now.m_states == before.m_states) return nullptr;
    return std::make_unique<StateChange<LayerStates>>("layers", std::move(before), std::move(now));
}
