// The contents of a DXF drawing: header, tables, blocks and entities. Filled by reader.h. All texts are UTF-8. Names
// are as stored, with escapes such as \U+00C4, which ToDisplayText resolves.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/entities.h"

namespace dxf {

struct Header {
    std::string version;  // "AC1015"; empty if missing
    std::string codePage; // "ANSI_1252"; empty if missing
    int unit = 0;         // unit of the drawing: 1 inch, 2 foot, 4 mm, 5 cm, 6 m ...; 0: unknown
    int metric = -1;      // 1 metric, 0 not, used if unit is 0; -1: unknown
    int lengthFormat = 2; // 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional
    int lengthDigits = 4;
    int angleFormat = 0; // 0 degrees, 1 degrees minutes seconds, 2 grads, 3 radians, 4 surveyor's
    int angleDigits = 0;
    double lineTypeScale = 1;
};

constexpr int kLayerIsFrozen = 1, kLayerIsLocked = 4;

// Each named object records whether a table declares it or an entity only refers to it.
struct Layer {
    std::string name;
    std::string stored; // its bytes, if encoding the name would result in others
    bool declared = false;
    int color = 7; // as stored; negative: the layer is off
    int flags = 0; // kLayerIsFrozen, kLayerIsLocked, and others
    std::string lineType;
    int32_t trueColor = -1; // 0xRRGGBB; -1: none
    int lineWeight = kLineWeightDefault;
    bool plotted = true;
    uint32_t offset = 0; // of its record in the file's text
};

struct LineType {
    std::string name;
    std::string stored;
    bool declared = false;
    std::string description;
    double patternLength = 0;
    std::vector<double> dashes; // positive: dash, negative: gap, 0: dot
};

// Flags in the extended data of a text style.
constexpr int kFaceIsBold = 0x2000000, kFaceIsItalic = 0x1000000;

struct TextStyle {
    std::string name;
    std::string stored;
    bool declared = false;
    std::string fontFile; // "txt.shx", "arial.ttf"
    std::string fontFace; // TrueType family; empty if missing
    bool bold = false;
    bool italic = false;
    double fixedHeight = 0; // 0: each text has its own height
    double widthFactor = 1;
    double oblique = 0;
    bool backward = false;
    bool upsideDown = false;
};

struct Block {
    std::string name;
    std::string stored;
    bool declared = false;
    Vec3 base;
    int flags = 0;
    std::vector<Entity> entities;
    ExtendedData extended;       // of its BLOCK record
    uint32_t begin = 0, end = 0; // offsets of its BLOCK and ENDBLK records in the file's text
};

struct Document {
    Header header;
    std::vector<Layer> layers;
    std::vector<LineType> lineTypes;
    std::vector<TextStyle> textStyles;
    std::vector<Block> blocks;
    std::vector<Entity> entities; // of the ENTITIES section: model space, and one paper space layout

    // Numbers of records in the ENTITIES section by type, including skipped ones and VERTEX, ATTRIB and SEQEND.
    std::map<std::string, uint64_t, std::less<>> entityCounts;

    std::vector<Warning> warnings; // at most kMaxWarnings, then one with the number of others
    static constexpr size_t kMaxWarnings = 200;

    // Returns a copy without entities and warnings.
    Document Tables() const;

    const TextStyle& At(TextStyleIndex index) const { return textStyles[static_cast<size_t>(index)]; }
    const LineType& At(LineTypeIndex index) const { return lineTypes[static_cast<size_t>(index)]; }
    const Layer& At(LayerIndex index) const { return layers[static_cast<size_t>(index)]; }
    const Block& At(BlockIndex index) const { return blocks[static_cast<size_t>(index)]; }
};

} // namespace dxf
