// Accesses the values of an appearance by property name.
#include <algorithm>
#include <type_traits>

#include "drawcore/src/dxf/look.h"

namespace dxf {

namespace {

struct Place {
    const char* name;
    double (*get)(const Look&);
    void (*set)(Look&, double);
};

template <auto field>
auto& In(Look& look) {
    return look.*field;
}
template <auto field>
auto& InBrush(Look& look) {
    return look.brush.*field;
}
template <auto field>
auto& InText(Look& look) {
    return look.text.*field;
}

template <auto& in>
constexpr Place At(const char* name) {
    return {name, [](const Look& look) { return static_cast<double>(in(const_cast<Look&>(look))); },
            [](Look& look, double value) {
                auto& at = in(look);
                at = static_cast<std::decay_t<decltype(at)>>(value);
            }};
}

constexpr Place kPlaces[] = {
    At<In<&Look::color>>(kPropPenColor),
    At<In<&Look::lineScale>>(kPropPenScale),
    At<In<&Look::dashesFitted>>(kPropPenAlignment),
    At<InBrush<&BrushLook::color>>(kPropBrushColor),
    At<InBrush<&BrushLook::scale>>(kPropBrushScale),
    At<InBrush<&BrushLook::angle>>(kPropBrushAngle),
    At<InBrush<&BrushLook::cross>>(kPropHatchCross),
    At<InBrush<&BrushLook::winding>>(kPropBrushDrawMode),
    At<InText<&TextLook::height>>(kPropTextSize),
    At<InText<&TextLook::style>>(kPropTextStyle),
    At<InText<&TextLook::format>>(kPropTextFormat),
};

const Place* FindPlace(std::string_view name) {
    const auto* found =
        std::find_if(std::begin(kPlaces), std::end(kPlaces), [&](const Place& place) { return name == place.name; });
    return found != std::end(kPlaces) ? found : nullptr;
}

} // namespace

std::optional<double> NumberOf(const Look& look, std::string_view property) {
    if (const Place* place = FindPlace(property)) return place->get(look);
    const OwnValue* value = FindOwn(look.extended, property);
    return value && !value->numbers.empty() ? std::optional(value->numbers[0]) : std::nullopt;
}

std::string TextOf(const Look& look, std::string_view property) {
    if (property == kPropTextFont) return look.text.font;
    const OwnValue* value = FindOwn(look.extended, property);
    return value ? value->text : "";
}

void SetNumber(Look& look, const char* property, double value) {
    if (const Place* place = FindPlace(property))
        place->set(look, value);
    else
        SetExtended(look, {property, "", {value}});
}

void SetText(Look& look, const char* property, const std::string& text) {
    if (property == std::string_view(kPropTextFont))
        look.text.font = text;
    else
        SetExtended(look, {property, text, {}});
}

void SetExtended(Look& look, OwnValue value) {
    const auto at = std::lower_bound(look.extended.begin(), look.extended.end(), value,
                                     [](const OwnValue& a, const OwnValue& b) { return a.name < b.name; });
    const auto from = at != look.extended.end() && at->name == value.name ? look.extended.erase(at) : at;
    if (!value.text.empty() || !value.numbers.empty()) look.extended.insert(from, std::move(value));
}

} // namespace dxf
