// A TrueType face with its styles, measured in heights of a capital letter.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include "drawcore/src/graphics/shaped_text.h"

namespace drawcore {

class TextFace {
public:
    // The face of that name; bits of style: italic, bold, strikethrough, underline (as TextGraphic's). A face that the
    // system doesn't have is replaced by the system's choice. Made once and kept.
    static const TextFace& Get(const std::string& name, uint16_t style);

    ~TextFace();
    TextFace(const TextFace&) = delete;
    TextFace& operator=(const TextFace&) = delete;

    // Length of a row along the baseline, in heights of a capital letter.
    double Width(std::wstring_view row) const;
    // The way from each letter to the next, in the font's units; their sum is the length.
    std::vector<int> Steps(std::wstring_view row) const;
    // The row as the system shapes it; empty if its letters follow each other by their steps.
    std::vector<ShapedRun> Shape(std::wstring_view row) const;
    // Onto a device context that has the font.
    void Draw(HDC dc, const std::vector<ShapedRun>& row, POINT leftEndOfBaseline) const {
        DrawShapedRow(dc, shapes_, row, leftEndOfBaseline.x, leftEndOfBaseline.y);
    }

    // The face that the system has given for the name asked for.
    const std::string& Name() const { return name_; }
    // The font to draw with, and the height of its capital letters in logical units.
    HFONT Font() const { return font_; }
    int CapitalHeight() const { return capital_; }
    double Descent() const { return descent_; } // below the baseline, in heights of a capital letter

private:
    TextFace(const std::string& name, uint16_t style);

    HFONT font_;
    std::string name_;
    mutable SCRIPT_CACHE shapes_ = nullptr; // the shaping engine's own, of this font
    int capital_ = 1;
    double descent_ = 0;
};

} // namespace drawcore
