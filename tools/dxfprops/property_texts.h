// Properties of entities as texts: the names of the sheet's properties, and values in the forms that its pages show.
//
//   dxfprops::PropertyTexts texts(document);
//   texts.Get("PenWidth", look)                  // "0.5 mm"
//   texts.Set("PenColor", "purple", look)        // SaveError: "PenColor: 'purple' is none of By Layer, ..."
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawcore/src/dxf/look.h"
#include "drawcore/src/units/unit_settings.h"

namespace dxfprops {

class PropertyTexts {
public:
    // Of a drawing with its entities, which has to outlive it.
    explicit PropertyTexts(const dxf::Document& document);

    // In the order in which they are set: what others depend on comes first.
    static std::vector<std::string> Names();
    // The name as it is written, whatever its case was; none if there is no such property.
    static std::optional<std::string> NameOf(std::string_view name);
    static bool Has(const dxf::Entity& entity, std::string_view name);

    std::string Get(std::string_view name, const dxf::Look& look) const;
    // The same, and whether parts of the text have other values.
    std::string GetWithVariety(std::string_view name, const dxf::Look& look) const;
    // SaveError if the text is not a value of the property; the message lists those that are allowed.
    void Set(std::string_view name, const std::string& text, dxf::Look& look) const;

private:
    friend struct PropertyForms;

    void AddPatterns(const std::vector<dxf::Entity>& entities);

    const dxf::Document& document_;
    drawcore::UnitSettings units_;
    std::vector<dxf::BrushLook> patterns_; // that its hatches have
};

// Whether two entities look the same, each in its own drawing.
bool SameLook(const dxf::Document& a, const dxf::Look& one, const dxf::Document& b, const dxf::Look& other);

} // namespace dxfprops
