// The attributes of a graphic: pen, brush, and the other property values. Access by property name is in properties.h.
#pragma once

#include <cstddef>
#include <string>
#include <tuple>

#include "drawcore/src/styles/brush_style.h"
#include "drawcore/src/styles/colors.h"
#include "drawcore/src/styles/line_style.h"

namespace drawcore {

struct Pen {
    double width = 0; // in the unit of scaleSystem, or a marker; 0 is the thinnest line of the device
    double scale = 1; // scale factor of the dash pattern
    Color color = kColorByLayer;
    uint16_t style = kLineStyleByLayer;
    uint8_t scaleSystem = kScalePaper;
    bool alignment = true; // fit dashes to each segment; otherwise the pattern continues around corners

    auto Values() const { return std::tie(width, scale, color, style, scaleSystem, alignment); } // all members
};

struct Brush {
    double scale = 1;
    double angle = 0; // in radians
    Color color = kColorOfPen;
    int32_t drawMode = 0; // 1: winding, 0: alternate
    uint16_t style = kBrushStyleNone;
    bool cross = false; // hatch again at a right angle

    auto Values() const { return std::tie(scale, angle, color, drawMode, style, cross); } // all members
};

// The brush of most graphics.
inline constexpr Brush kNoBrush{};

inline bool operator==(const Pen& a, const Pen& b) {
    return a.Values() == b.Values();
}
inline bool operator==(const Brush& a, const Brush& b) {
    return a.Values() == b.Values();
}

// The values of all properties of a graphic, for the undo log; shared by many graphics.
struct Appearance {
    Pen pen;
    Brush brush;
    Id layer = kNoId;
    Id styleTree = kNoId;
    std::string info;
    // For texts.
    std::string font;
    double textHeight = 0;
    uint16_t textStyle = 0;
    uint16_t textFormat = 0;
    // Not a property, but written together with properties: GraphicStruct::wLastPage.
    uint16_t lastPage = 0;

    // All members except pen and brush.
    auto Values() const { return std::tie(layer, styleTree, info, font, textHeight, textStyle, textFormat); }
    bool operator==(const Appearance& other) const {
        return lastPage == other.lastPage && pen == other.pen && brush == other.brush && Values() == other.Values();
    }
};

struct AppearanceHash {
    size_t operator()(const Appearance& appearance) const;
};

} // namespace drawcore
