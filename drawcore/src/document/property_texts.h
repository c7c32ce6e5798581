// Properties of entities as text: the names of the sheet's properties, and values in the format of its pages.
//
//   dxf::PropertyTexts texts(document);
//   texts.Get("PenWidth", appearance)               // "0.5 mm"
//   texts.Set("PenColor", "purple", appearance)     // SaveError: "PenColor: 'purple' is not one of By Layer, ..."
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/units/unit_settings.h"

namespace dxf {

class PropertyTexts {
public:
    // The document must outlive this object.
    explicit PropertyTexts(const Document& document);

    // Returns the names of the sheet's properties in the order in which they are set: a width depends on its scale
    // system.
    static std::vector<std::string> Names();
    // Returns the canonical spelling of the name, or nullopt if there is no such property. The other functions ignore
    // the case of names.
    static std::optional<std::string> NameOf(std::string_view name);
    // Returns whether the entity has any property.
    static bool HasAny(const Entity& entity);
    static bool Has(const Entity& entity, std::string_view name);
    // Returns the value as a number: a length in millimeters of paper or in drawing units, a factor or an angle; none
    // for other properties and for inherited widths.
    static std::optional<double> NumberOf(std::string_view name, const Appearance& appearance);

    std::string Get(std::string_view name, const Appearance& appearance) const;
    // Throws SaveError if the text is not a value of the property. The message lists the valid ones.
    void Set(std::string_view name, const std::string& text, Appearance& appearance) const;

private:
    friend struct PropertyForms;

    void AddPatterns(const std::vector<Entity>& entities);

    const Document& document_;
    drawcore::UnitSettings units_;
    std::vector<BrushAppearance> patterns_; // the patterns of its hatches
};

// Reads "By Layer", a name, "Color 12", a number, "#FF0000" or "255,0,0". Throws SaveError.
uint32_t ReadColor(const std::string& text, bool ofBrush);

// Returns whether two entities, each in its own drawing, have the same appearance.
bool SameAppearance(const Document& a, const Appearance& one, const Document& b, const Appearance& other);

} // namespace dxf
