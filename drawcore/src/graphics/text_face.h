// A TrueType face with its style, measured relative to the height of a capital letter.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include "drawcore/src/graphics/shaped_text.h"

namespace drawcore {

class TextFace {
public:
    // Returns the face with that name; bits of style: italic, bold, strikethrough, underline (as in TextGraphic). The
    // system substitutes a face that is not installed. Faces are cached.
    static const TextFace& Get(const std::string& name, uint16_t style);

    ~TextFace();
    TextFace(const TextFace&) = delete;
    TextFace& operator=(const TextFace&) = delete;

    // Returns the length of a row along the baseline, relative to the height of a capital letter.
    double Width(std::wstring_view row) const;
    // Returns the advance widths of the letters in font units; their sum is the length.
    std::vector<int> Steps(std::wstring_view row) const;
    // Returns the runs shaped by the system, or nothing if advance widths are sufficient.
    std::vector<ShapedRun> Shape(std::wstring_view row) const;
    // The font must be selected in the device context.
    void Draw(HDC dc, const std::vector<ShapedRun>& row, POINT leftEndOfBaseline) const {
        DrawShapedRow(dc, shapes_, row, leftEndOfBaseline.x, leftEndOfBaseline.y);
    }

    // Returns the name of the face that the system has substituted.
    const std::string& Name() const { return name_; }
    // Returns the font, and the height of its capital letters in logical units.
    HFONT Font() const { return font_; }
    int CapitalHeight() const { return capital_; }
    double Descent() const { return descent_; } // below the baseline, relative to the height of a capital letter

private:
    TextFace(const std::string& name, uint16_t style);

    HFONT font_;
    std::string name_;
    mutable SCRIPT_CACHE shapes_ = nullptr; // used by the shaping engine for this font
    int capital_ = 1;
    double descent_ = 0;
};

} // namespace drawcore
