// Texts of one or more lines in a TrueType face.
#pragma once

#include <optional>

#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/shaped_text.h"
#include "orlo/host/words.h"

namespace drawcore {

// Which height of the text lies on the position.
enum class TextAnchor : uint8_t { Baseline, Bottom, Middle, Top };

struct TextState {
    std::wstring text; // UTF-16; lines end with '\n'
    std::string font;  // face name; empty is the default face
    Vec3 position;
    Vec3 along{1, 0, 0}; // direction of the baseline, length 1
    Vec3 up{0, 1, 0}; // direction of the letters' height, length 1; not at a right angle: oblique, other side: mirrored
    double height = 1;      // of a capital letter, drawing units
    double widthFactor = 1; // of the letters
    double fitWidth = 0;    // above 0: stretched to that length (DXF's aligned and fit)
    double wrapWidth = 0;   // above 0: lines are broken at blanks to stay within that length
    double lineSpacing = 1; // in multiples of the usual 5/3 of the height
    uint16_t style = 0;
    uint16_t format = kTextLeft;
    // Which edge of the box that holds the rows hangs at the position, in the values of format; none: that which format
    // says. The box is as wide as wrapWidth, or without one as the longest row.
    std::optional<uint16_t> boxFormat;
    TextAnchor anchor = TextAnchor::Baseline; // of the first line, or of the whole block but for Baseline

    bool operator==(const TextState& other) const;
};

class TextFace;

class TextGraphic : public Graphic {
public:
    TextGraphic();
    TextGraphic(const TextGraphic&) = default;

    Kind GetKind() const override { return Kind::Text; }
    std::unique_ptr<Graphic> CloneState() const override;
    void Restore(const Graphic& saved) override;
    bool EqualState(const Graphic& saved) const override;
    size_t StateSize() const override;
    Look GetLook() const override;
    bool HasLook(const Look& look) const override;
    bool SetLook(const Look& look) override;
    void TraceShape(const Trace& trace, const PenUse& use) const override;

    TextState state;

protected:
    void AddShapeExtents(Extents& extents) const override;

private:
    // A row laid out: origin and width in heights of a capital letter, along the baseline and upwards.
    struct Row {
        std::wstring text;
        std::vector<int> steps;      // empty if it is shaped
        std::vector<ShapedRun> runs; // empty if it needs no shaping
        Point origin;
        double width;
    };
    bool HasLetters(const Look& look) const;
    void LayOut() const;
    void PlaceRows(const TextFace& face) const;
    double BoxWidth() const;
    void TraceFrame(const Trace& trace, const PenUse& use) const;
    Matrix RowMatrix(const Row& row) const;

    mutable std::vector<Row> rows_; // made when the extents are; none: to be made
    mutable double stretch_ = 1;    // of the letters' widths
};

} // namespace drawcore
