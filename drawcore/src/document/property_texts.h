// Properties of entities as text: the names of the sheet's properties, and values in the format of its pages.
//
//   dxf::PropertyTexts texts(document);
//   texts.Get("PenWidth", appearance)               // "0.5 mm"
//   texts.Set("PenColor", "purple", appearance)     // SaveError: "PenColor: 'purple' is none of By Layer, ..."
#pragma once

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/units/unit_settings.h"

namespace dxf {

class PropertyTexts {
public:
    // The document must outlive this object.
    explicit PropertyTexts(const Document& document);

    static bool Has(const Entity& entity, std::string_view name);

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

// Returns whether two entities, each in its own drawing, have the same appearance.
bool SameAppearance(const Document& a, const Appearance& one, const Document& b, const Appearance& other);

} // namespace dxf
