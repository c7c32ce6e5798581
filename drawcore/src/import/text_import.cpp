// Position, style and alignment of imported texts.
#include "drawcore/src/import/text_import.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/appearance_parts.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/import/vertex_builder.h"

namespace drawcore {

namespace {

double ValidWidth(double factor) {
    return factor > 0 ? std::clamp(factor, 0.01, 100.0) : 1;
}

TextAnchor AnchorOf(const dxf::Text& text) {
    if (text.horizontal == dxf::Text::Horizontal::middle) return TextAnchor::Middle;
    switch (text.vertical) {
    case dxf::Text::Vertical::bottom:
        return TextAnchor::Bottom;
    case dxf::Text::Vertical::middle:
        return TextAnchor::Middle;
    case dxf::Text::Vertical::top:
        return TextAnchor::Top;
    default:
        return TextAnchor::Baseline;
    }
}

// Sets position, rotation, mirroring and obliquing of a single line.
void Place(const dxf::Entity& entity, const dxf::Text& text, TextState& state) {
    using Horizontal = dxf::Text::Horizontal;
    const Matrix system = dxf::ObjectSystem(entity.normal);
    const bool fitted = text.horizontal == Horizontal::aligned || text.horizontal == Horizontal::fit;
    const bool byAlignment =
        !fitted && (text.horizontal != Horizontal::left || text.vertical != dxf::Text::Vertical::baseline);
    double angle = Radians(text.rotation);
    if (fitted) {
        const Vec3 baseline = text.alignment - text.insertion;
        state.fitWidth = std::hypot(baseline.x, baseline.y);
        if (state.fitWidth > 0) angle = std::atan2(baseline.y, baseline.x);
    }
    const double slant = Radians(std::clamp(std::remainder(text.oblique, 360.0), -80.0, 80.0));
    const double backward = text.backward ? -1 : 1, upsideDown = text.upsideDown ? -1 : 1;
    const double up = angle + kPi / 2 - slant;
    state.position = system.Apply(byAlignment ? text.alignment : text.insertion);
    state.along = system.ApplyToVector({std::cos(angle), std::sin(angle), 0}) * backward;
    state.up = system.ApplyToVector({std::cos(up), std::sin(up), 0}) * upsideDown;
}

} // namespace

std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::Text& text) {
    const bool isDefinition = text.role == dxf::Text::Role::definition;
    const dxf::LineText line = dxf::ReadControlCodes(dxf::ToDisplayText(isDefinition ? text.tag : text.text));
    if (line.text.empty()) return nullptr;
    auto graphic = std::make_unique<TextGraphic>();
    TextState& state = graphic->state;
    state.text = Utf16FromUtf8(line.text);
    state.widthFactor = ValidWidth(text.widthFactor);
    state.anchor = AnchorOf(text);
    Place(entity, text, state);
    return graphic;
}

std::unique_ptr<TextGraphic> ImportText(const dxf::Entity& entity, const dxf::MText& text,
                                        const dxf::Document& document) {
    const double height = dxf::HeightOf(text, document);
    const dxf::FormattedText formatted = dxf::ReadInlineCodes(text.text, height);
    std::string plain = formatted.Plain();
    if (plain.empty()) return nullptr;
    for (size_t tab; (tab = plain.find('\t')) != plain.npos;)
        plain.replace(tab, 1, "    ");
    const dxf::InlineFormat format = formatted.DominantFormat();
    auto graphic = std::make_unique<TextGraphic>();
    TextState& state = graphic->state;
    state.text = Utf16FromUtf8(plain);
    state.widthFactor = ValidWidth(document.At(text.style).widthFactor * format.widthFactor);
    state.wrapWidth = std::max(text.width, 0.0);
    state.lineSpacing = text.lineSpacing > 0 ? std::clamp(text.lineSpacing, 0.25, 4.0) : 1;
    if (format.alignment != 0) // paragraph alignment is relative to the text's box, which does not move
        state.boxFormat = static_cast<uint16_t>((text.attachment - 1) % 3);
    constexpr TextAnchor kAnchors[] = {TextAnchor::Top, TextAnchor::Middle, TextAnchor::Bottom};
    state.anchor = kAnchors[(text.attachment - 1) / 3];
    state.position = text.insertion;
    const Vec3 along = text.direction, normal = dxf::ObjectSystem(entity.normal).ApplyToVector({0, 0, 1});
    state.along = Length(along) > 0 ? Normalized(along) : Vec3{1, 0, 0};
    state.up = Normalized(Cross(normal, state.along));
    return graphic;
}

} // namespace drawcore
