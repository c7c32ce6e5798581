// Lays out the rows of a text, and traces them.
#include "drawcore/src/graphics/text_graphic.h"

#include <algorithm>
#include <numeric>
#include <tuple>

#include <windows.h>

#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/trace.h"

namespace drawcore {

namespace {

constexpr double kRowStep = 5.0 / 3; // distance of baselines relative to the height of a capital letter
constexpr double kFrameGap = 0.3;    // around a framed text, likewise
constexpr uint16_t kFaceBits = kTextItalic | kTextBold | kTextStrikethrough | kTextUnderline;

std::vector<std::wstring> SplitLines(const std::wstring& text) {
    std::vector<std::wstring> lines;
    size_t begin = 0;
    for (size_t end; (end = text.find(L'\n', begin)) != std::wstring::npos; begin = end + 1)
        lines.push_back(text.substr(begin, end - begin));
    lines.push_back(text.substr(begin));
    return lines;
}

// Wraps a line at blanks so that rows are at most as wide as the limit if words permit.
void Wrap(const std::wstring& line, double limit, const TextFace& face, std::vector<std::wstring>& rows) {
    size_t begin = 0, fits = std::wstring::npos;
    for (size_t blank = line.find(L' '); blank != std::wstring::npos; blank = line.find(L' ', blank + 1)) {
        if (fits != std::wstring::npos && face.Width(std::wstring_view(line).substr(begin, blank - begin)) > limit) {
            rows.push_back(line.substr(begin, fits - begin));
            begin = fits + 1;
        }
        fits = blank;
    }
    if (fits != std::wstring::npos && fits >= begin && face.Width(std::wstring_view(line).substr(begin)) > limit) {
        rows.push_back(line.substr(begin, fits - begin));
        begin = fits + 1;
    }
    rows.push_back(line.substr(begin));
}

} // namespace

bool TextState::operator==(const TextState& other) const {
    const auto tie = [](const TextState& s) {
        return std::tie(s.text, s.font, s.height, s.widthFactor, s.fitWidth, s.wrapWidth, s.lineSpacing, s.style,
                        s.format, s.boxFormat, s.anchor);
    };
    return tie(*this) == tie(other) && position == other.position && along == other.along && up == other.up;
}

TextGraphic::TextGraphic() : Graphic(kGraphicText, &kTextProperties) {}

std::unique_ptr<Graphic> TextGraphic::CloneState() const {
    auto copy = std::make_unique<TextGraphic>(*this);
    copy->rows_ = {};
    return copy;
}

void TextGraphic::Restore(const Graphic& saved) {
    state = static_cast<const TextGraphic&>(saved).state;
    RestoreAttributes(saved);
}

size_t TextGraphic::StateSize() const {
    return sizeof *this + state.text.size() * sizeof(wchar_t) + state.font.size();
}

Appearance TextGraphic::GetAppearance() const {
    Appearance appearance = Graphic::GetAppearance();
    appearance.font = state.font;
    appearance.textHeight = state.height;
    appearance.textStyle = state.style;
    appearance.textFormat = state.format;
    return appearance;
}

bool TextGraphic::HasLetters(const Appearance& appearance) const {
    return state.font == appearance.font && state.height == appearance.textHeight &&
           state.style == appearance.textStyle && state.format == appearance.textFormat;
}

bool TextGraphic::HasAppearance(const Appearance& appearance) const {
    return Graphic::HasAppearance(appearance) && HasLetters(appearance);
}

bool TextGraphic::SetAppearance(const Appearance& appearance) {
    Graphic::SetAppearance(appearance);
    if (HasLetters(appearance)) return false;
    state.font = appearance.font;
    state.height = appearance.textHeight;
    state.style = appearance.textStyle;
    state.format = appearance.textFormat;
    return true;
}

// Lays out the rows again, because something may have changed.
void TextGraphic::AddShapeExtents(Extents& extents) const {
    rows_.clear();
    Graphic::AddShapeExtents(extents);
}

bool TextGraphic::EqualState(const Graphic& saved) const {
    return EqualAttributes(saved) && state == static_cast<const TextGraphic&>(saved).state;
}

void TextGraphic::LayOut() const {
    if (!rows_.empty()) return;
    std::wstring text = state.text;
    if (state.style & kTextAllCaps) ::CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    const TextFace& face = TextFace::Get(state.font, state.style & kFaceBits);
    const double unit = state.height * state.widthFactor;
    std::vector<std::wstring> texts;
    for (const std::wstring& line : SplitLines(text)) {
        if (state.wrapWidth > 0 && unit > 0)
            Wrap(line, state.wrapWidth / unit, face, texts);
        else
            texts.push_back(line);
    }
    rows_.reserve(texts.size());
    for (std::wstring& row : texts) {
        std::vector<ShapedRun> runs = face.Shape(row);
        std::vector<int> steps;
        if (runs.empty()) steps = face.Steps(row);
        double width = std::accumulate(steps.begin(), steps.end(), 0.0);
        for (const ShapedRun& run : runs)
            width += run.width;
        rows_.push_back({std::move(row), std::move(steps), std::move(runs), {}, width / face.CapitalHeight()});
    }
    PlaceRows(face);
}

void TextGraphic::PlaceRows(const TextFace& face) const {
    const double step = kRowStep * state.lineSpacing, down = step * static_cast<double>(rows_.size() - 1);
    double y = 0;
    if (state.anchor == TextAnchor::Top) y = -1;
    if (state.anchor == TextAnchor::Middle) y = (down - 1) / 2;
    if (state.anchor == TextAnchor::Bottom) y = down + face.Descent();
    stretch_ = state.widthFactor;
    if (state.fitWidth > 0 && rows_.front().width > 0) stretch_ = state.fitWidth / (rows_.front().width * state.height);
    const double boxShift = state.boxFormat ? BoxWidth() * (state.format - *state.boxFormat) / 2.0 : 0;
    for (Row& row : rows_) {
        row.origin = {boxShift - row.width * state.format / 2.0, y};
        y -= step;
    }
}

// Returns the width of the text's box in the unit of the rows.
double TextGraphic::BoxWidth() const {
    if (state.wrapWidth > 0) return state.wrapWidth / (state.height * state.widthFactor);
    double widest = 0;
    for (const Row& row : rows_)
        widest = std::max(widest, row.width);
    return widest;
}

Matrix TextGraphic::RowMatrix(const Row& row) const {
    const Vec3 x = state.along * (state.height * stretch_), y = state.up * state.height;
    return Matrix::FromAxes(x, y, Cross(state.along, state.up), state.position + x * row.origin.x + y * row.origin.y);
}

void TextGraphic::TraceShape(const Trace& trace, const PenUse& use) const {
    if (state.style & kTextHidden) return;
    LayOut();
    if (state.style & kTextBox) TraceFrame(trace, use);
    const TextFace& face = TextFace::Get(state.font, state.style & kFaceBits);
    for (const Row& row : rows_) {
        if (row.text.empty()) continue;
        trace.sink.Text(
            {row.text, row.steps.data(), &row.runs, &face, RowMatrix(row) * trace.matrix, row.width, use.color});
    }
}

// Traces a frame around all rows.
void TextGraphic::TraceFrame(const Trace& trace, const PenUse& use) const {
    double left = 0, right = 0;
    for (const Row& row : rows_) {
        left = std::min(left, row.origin.x);
        right = std::max(right, row.origin.x + row.width);
    }
    const double top = rows_.front().origin.y + 1 + kFrameGap, bottom = rows_.back().origin.y - 2 * kFrameGap;
    const Matrix matrix = RowMatrix({{}, {}, {}, {}, 0}) * trace.matrix;
    Path& path = trace.tools.path;
    path.Clear();
    path.MoveTo(matrix.Plan({left - kFrameGap, bottom, 0}));
    for (const Point& p : {Point{right + kFrameGap, bottom},
                           {right + kFrameGap, top},
                           {left - kFrameGap, top},
                           {left - kFrameGap, bottom}})
        path.LineTo(matrix.Plan({p.x, p.y, 0}));
    if (use.strokes) trace.sink.Stroke(path, use);
}

} // namespace drawcore
