// Layers: the table "_Layers_".
#pragma once

#include "drawcore/src/styles/colors.h"
#include "drawcore/src/styles/line_style.h"

namespace drawcore {

// Graphics on a layer are drawn if it is neither off nor frozen, and can be edited unless it is locked.
class Layer : public TableEntry {
public:
    using TableEntry::TableEntry;
    bool IsVisible() const { return !off && !frozen; }

    Color color = kWhite;
    uint16_t lineStyle = kLineStyleNone; // entry of "_LineStyles_"; kLineStyleNone is solid
    double lineWidth = 0;                // for pens that inherit it, in inches on paper
    bool off = false;
    bool frozen = false;
    bool locked = false;
};

// The first entry is "0"; graphics on it in a block are on the layer of the insertion.
class LayerTable : public TableOf<Layer> {
public:
    explicit LayerTable(DrawingStruct* owner);
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
};

constexpr Id kLayerZero = 1;

} // namespace drawcore
