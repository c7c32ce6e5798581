// Measures a face in a memory device context.
#include "drawcore/src/graphics/text_face.h"

#include <map>

#include "drawcore/src/graphics/gdi.h"
#include "drawcore/src/graphics/text_graphic.h"

namespace drawcore {

namespace {

constexpr int kEm = 1000; // height of fonts in logical units; drawn through a transformation
constexpr const char* kDefaultFace = "Arial";

HFONT MakeFont(const std::string& name, uint16_t style) {
    LOGFONTA font{};
    font.lfHeight = -kEm;
    font.lfWeight = style & kTextBold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = (style & kTextItalic) != 0;
    font.lfUnderline = (style & kTextUnderline) != 0;
    font.lfStrikeOut = (style & kTextStrikethrough) != 0;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    ::lstrcpynA(font.lfFaceName, name.empty() ? kDefaultFace : name.c_str(), LF_FACESIZE);
    return ::CreateFontIndirectA(&font);
}

// Returns the device context for all text measurements.
HDC MeasuringDevice() {
    static const OwnedDC device(::CreateCompatibleDC(nullptr));
    return device.get();
}

} // namespace

const TextFace& TextFace::Get(const std::string& name, uint16_t style) {
    static std::map<std::pair<std::string, uint16_t>, std::unique_ptr<TextFace>> faces;
    std::unique_ptr<TextFace>& face = faces[{name, style}];
    if (!face) face.reset(new TextFace(name, style));
    return *face;
}

TextFace::TextFace(const std::string& name, uint16_t style) : font_(MakeFont(name, style)) {
    const SelectedObject selected(MeasuringDevice(), font_);
    char substituted[LF_FACESIZE] = "";
    ::GetTextFaceA(MeasuringDevice(), sizeof substituted, substituted);
    name_ = substituted;
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(MeasuringDevice(), &metrics);
    GLYPHMETRICS glyph{};
    constexpr MAT2 kIdentity = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    const DWORD result = ::GetGlyphOutlineA(MeasuringDevice(), 'H', GGO_METRICS, &glyph, 0, nullptr, &kIdentity);
    capital_ = result != GDI_ERROR && glyph.gmptGlyphOrigin.y > 0 ? glyph.gmptGlyphOrigin.y : kEm * 7 / 10;
    descent_ = static_cast<double>(metrics.tmDescent) / capital_;
}

TextFace::~TextFace() {
    ::ScriptFreeCache(&shapes_);
    ::DeleteObject(font_);
}

std::vector<int> TextFace::Steps(std::wstring_view row) const {
    const SelectedObject selected(MeasuringDevice(), font_);
    std::vector<int> steps(row.size());
    SIZE size{};
    ::GetTextExtentExPointW(MeasuringDevice(), row.data(), static_cast<int>(row.size()), 0, nullptr, steps.data(),
                            &size);
    for (size_t i = steps.size(); i-- > 1;)
        steps[i] -= steps[i - 1];
    return steps;
}

std::vector<ShapedRun> TextFace::Shape(std::wstring_view row) const {
    const SelectedObject selected(MeasuringDevice(), font_);
    return ShapeRow(MeasuringDevice(), shapes_, row);
}

double TextFace::Width(std::wstring_view row) const {
    const SelectedObject selected(MeasuringDevice(), font_);
    SIZE size{};
    ::GetTextExtentPoint32W(MeasuringDevice(), row.data(), static_cast<int>(row.size()), &size);
    return static_cast<double>(size.cx) / capital_;
}

} // namespace drawcore
