// Texts of one or more lines in a TrueType face.
#pragma once

#include <optional>

#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/shaped_text.h"
#include "orlo/host/words.h"

namespace drawcore {

// The height of the text that is at the position.
enum class TextAnchor : uint8_t { Baseline, Bottom, Middle, Top };

struct TextState {
    std::wstring text; // UTF-16; lines end with '\n'
    std::string font;  // face name; empty is the default face
    Vec3 position;
    Vec3 along{1, 0, 0}; // direction of the baseline, length 1
    Vec3 up{0, 1, 0};    // direction of the letters' height, normalized; an angle other than 90 degrees makes the text
                         // oblique, the other side mirrors it
    double height = 1;   // height of a capital letter in drawing units
    double widthFactor = 1; // of the letters
    double fitWidth = 0;    // if positive, the text is stretched to that length (DXF's aligned and fit)
    double wrapWidth = 0;   // if positive, lines are wrapped at blanks within that length
    double lineSpacing = 1; // relative to the usual 5/3 of the height
    uint16_t style = 0;
    uint16_t format = kTextLeft;
    // The edge of the text's box that is at the position, as a value of format; if missing, that of format. The box is
    // as wide as wrapWidth or, if it is 0, as the longest row.
    std::optional<uint16_t> boxFormat;
    TextAnchor anchor = TextAnchor::Baseline; // of the first line; of the whole text unless it is Baseline

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
    Appearance GetAppearance() const override;
    bool HasAppearance(const Appearance& appearance) const override;
    bool SetAppearance(const Appearance& appearance) override;
    void TraceShape(const Trace& trace, const PenUse& use) const override;

    TextState state;

protected:
    void AddShapeExtents(Extents& extents) const override;

private:
    // A row of the layout: origin and width relative to the height of a capital letter, along the baseline and upward.
    struct Row {
        std::wstring text;
        std::vector<int> steps;      // empty if it is shaped
        std::vector<ShapedRun> runs; // empty if it needs no shaping
        Point origin;
        double width;
    };
    bool HasLetters(const Appearance& appearance) const;
    void LayOut() const;
    void PlaceRows(const TextFace& face) const;
    double BoxWidth() const;
    void TraceFrame(const Trace& trace, const PenUse& use) const;
    Matrix RowMatrix(const Row& row) const;

    mutable std::vector<Row> rows_; // laid out when extents are computed; empty if not laid out
    mutable double stretch_ = 1;    // horizontal scale of the letters
};

} // namespace drawcore
