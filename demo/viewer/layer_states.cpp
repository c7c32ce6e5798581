// Recorded states of layers.

#include "demo/viewer/layer_states.h"

#include <utility>

#include "drawcore/layer.h"
#include "orlo/host/drawing.h"
#include "orlo/host/walk.h"

namespace {

class LayerChange : public UndoableChange {
public:
    LayerChange(LayerStates before, LayerStates after) : m_before(std::move(before)), m_after(std::move(after)) {}
    void Undo() override { m_before.Restore(); }
    void Redo() override { m_after.Restore(); }
    std::string What() const override { return "layers"; }

private:
    LayerStates m_before, m_after;
};

} // namespace

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
    return std::make_unique<LayerChange>(std::move(before), std::move(now));
}
