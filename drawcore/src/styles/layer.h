// Layers: the table "_Layers_".
#pragma once

#include "drawcore/src/styles/colors.h"
#include "drawcore/src/styles/line_style.h"

namespace drawcore {

// What is on a layer is drawn if it is neither off nor frozen, and changed by hand only if it isn't locked.
class Layer : public TableEntry {
public:
    using TableEntry::TableEntry;
    bool IsVisible() const { return !off && !frozen; }

    Color color = kWhite;
    uint16_t lineStyle = kLineStyleNone; // entry of "_LineStyles_"; none is solid
    double lineWidth = 0;                // of pens that inherit it, in inches of paper
    bool off = false;
    bool frozen = false;
    bool locked = false;
};

// The first entry is "0": in a block it stands for the layer of the insertion.
class LayerTable : public TableOf<Layer> {
public:
    explicit LayerTable(DrawingStruct* owner);
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
};

constexpr Id kLayerZero = 1;

} // namespace drawcore
