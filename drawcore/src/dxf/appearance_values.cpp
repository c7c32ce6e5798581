// Accesses the values of an appearance by property name.
#include <algorithm>
#include <type_traits>

#include "drawcore/src/dxf/appearance.h"

namespace dxf {

namespace {

struct Accessor {
    const char* name;
    double (*get)(const Appearance&);
    void (*set)(Appearance&, double);
};

template <auto field>
auto& In(Appearance& appearance) {
    return appearance.*field;
}
template <auto field>
auto& InBrush(Appearance& appearance) {
    return appearance.brush.*field;
}
template <auto field>
auto& InText(Appearance& appearance) {
    return appearance.text.*field;
}

template <auto& in>
constexpr Accessor At(const char* name) {
    return {name,
            [](const Appearance& appearance) { return static_cast<double>(in(const_cast<Appearance&>(appearance))); },
            [](Appearance& appearance, double value) {
                auto& at = in(appearance);
                at = static_cast<std::decay_t<decltype(at)>>(value);
            }};
}

constexpr Accessor kAccessors[] = {
    At<In<&Appearance::color>>(kPropPenColor),
    At<In<&Appearance::lineScale>>(kPropPenScale),
    At<In<&Appearance::dashesFitted>>(kPropPenAlignment),
    At<InBrush<&BrushAppearance::color>>(kPropBrushColor),
    At<InBrush<&BrushAppearance::scale>>(kPropBrushScale),
    At<InBrush<&BrushAppearance::angle>>(kPropBrushAngle),
    At<InBrush<&BrushAppearance::cross>>(kPropHatchCross),
    At<InBrush<&BrushAppearance::winding>>(kPropBrushDrawMode),
    At<InText<&TextAppearance::height>>(kPropTextSize),
    At<InText<&TextAppearance::style>>(kPropTextStyle),
    At<InText<&TextAppearance::format>>(kPropTextFormat),
};

const Accessor* FindAccessor(std::string_view name) {
    const auto* found = std::find_if(std::begin(kAccessors), std::end(kAccessors),
                                     [&](const Accessor& accessor) { return name == accessor.name; });
    return found != std::end(kAccessors) ? found : nullptr;
}

} // namespace

std::optional<double> NumberOf(const Appearance& appearance, std::string_view property) {
    if (const Accessor* accessor = FindAccessor(property)) return accessor->get(appearance);
    const ExtendedValue* value = FindExtended(appearance.extended, property);
    return value && !value->numbers.empty() ? std::optional(value->numbers[0]) : std::nullopt;
}

std::string TextOf(const Appearance& appearance, std::string_view property) {
    if (property == kPropTextFont) return appearance.text.font;
    const ExtendedValue* value = FindExtended(appearance.extended, property);
    return value ? value->text : "";
}

void SetNumber(Appearance& appearance, const char* property, double value) {
    if (const Accessor* accessor = FindAccessor(property))
        accessor->set(appearance, value);
    else
        SetExtended(appearance, {property, "", {value}});
}

void SetText(Appearance& appearance, const char* property, const std::string& text) {
    if (property == std::string_view(kPropTextFont))
        appearance.text.font = text;
    else
        SetExtended(appearance, {property, text, {}});
}

void SetExtended(Appearance& appearance, ExtendedValue value) {
    const auto at = std::lower_bound(appearance.extended.begin(), appearance.extended.end(), value,
                                     [](const ExtendedValue& a, const ExtendedValue& b) { return a.name < b.name; });
    const auto from = at != appearance.extended.end() && at->name == value.name ? appearance.extended.erase(at) : at;
    if (!value.text.empty() || !value.numbers.empty()) appearance.extended.insert(from, std::move(value));
}

} // namespace dxf
