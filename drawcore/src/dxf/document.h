// A DXF drawing as read: header, tables, blocks and entities. Data only; reader.h fills it.
// All texts are UTF-8. Names are as stored, with escapes like \U+00C4 left in: ToDisplayText turns them into
// text.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/entities.h"

namespace dxf {

struct Header {
    std::string version;  // "AC1015"; empty if the file does not say
    std::string codePage; // "ANSI_1252"; empty if the file does not say
    int unit = 0;         // of a drawing unit: 1 inch, 2 foot, 4 mm, 5 cm, 6 m ...; 0: unknown
    int metric = -1;      // 1 metric, 0 not, in use where unit is 0; -1: unknown
    int lengthFormat = 2; // 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional
    int lengthDigits = 4;
    int angleFormat = 0; // 0 degrees, 1 degrees minutes seconds, 2 grads, 3 radians, 4 surveyor's
    int angleDigits = 0;
    double lineTypeScale = 1;
};

constexpr int kLayerIsFrozen = 1, kLayerIsLocked = 4;

// Every named thing says whether a table holds it, or an entity only mentions it.
struct Layer {
    std::string name;
    std::string stored; // its bytes, where encoding the name gives others
    bool declared = false;
    int color = 7; // as stored; negative: the layer is off
    int flags = 0; // kLayerIsFrozen, kLayerIsLocked, and others
    std::string lineType;
    int32_t trueColor = -1; // 0xRRGGBB; -1: none
    int lineWeight = kLineWeightDefault;
    bool plotted = true;
    uint32_t offset = 0; // of its record in the text of the file
};

struct LineType {
    std::string name;
    std::string stored;
    bool declared = false;
    std::string description;
    double patternLength = 0;
    std::vector<double> dashes; // positive a dash, negative a gap, 0 a dot
};

struct TextStyle {
    std::string name;
    std::string stored;
    bool declared = false;
    std::string fontFile; // "txt.shx", "arial.ttf"
    std::string fontFace; // TrueType family; empty if the file does not say
    bool bold = false;
    bool italic = false;
    double fixedHeight = 0; // 0: each text has its own
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
    OwnData own;                 // of its BLOCK record
    uint32_t begin = 0, end = 0; // of its BLOCK and its ENDBLK record in the text of the file
};

struct Document {
    Header header;
    std::vector<Layer> layers;
    std::vector<LineType> lineTypes;
    std::vector<TextStyle> textStyles;
    std::vector<Block> blocks;
    std::vector<Entity> entities; // of the ENTITIES section: model space, and one sheet of paper space

    // Records of the ENTITIES section by type, those that no Entity was made of and VERTEX, ATTRIB, SEQEND
    // included.
    std::map<std::string, uint64_t, std::less<>> entityCounts;

    std::vector<Finding> findings; // at most kMostFindings, then one that says how many more there were
    static constexpr size_t kMostFindings = 200;

    // The same without entities and what was found.
    Document Tables() const;

    const TextStyle& At(TextStyleIndex index) const { return textStyles[static_cast<size_t>(index)]; }
    const LineType& At(LineTypeIndex index) const { return lineTypes[static_cast<size_t>(index)]; }
    const Layer& At(LayerIndex index) const { return layers[static_cast<size_t>(index)]; }
    const Block& At(BlockIndex index) const { return blocks[static_cast<size_t>(index)]; }
};

} // namespace dxf
