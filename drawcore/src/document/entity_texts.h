// Values of entities besides the properties of the sheet, as text: contents of texts, positions and blocks of
// insertions.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/dxf/placement.h"

namespace dxf {

// The requested changes of one entity; missing values are not changed.
struct EntityEdit {
    std::optional<std::string> text;
    std::optional<Vec3> position; // in the world
    std::optional<Vec3> scale;
    std::optional<double> rotation; // degrees

    // Returns the insertion point of `was` with the requested scales and rotation.
    Insert NumbersOf(const Insert& was) const;
    // Returns the requested axes of the insertion, or nothing if they are not changed.
    std::optional<AxisEnds> EndsOf(const Entity& entity) const;
    // Returns whether another entity gets a new position.
    bool Moves(const Entity& entity) const;
};

class EntityTexts {
public:
    explicit EntityTexts(const Document& document) : document_(document) {}

    // Returns "Tag", "Text", "BlockName", "Position", "Scale" and "Rotation".
    static std::vector<std::string> Names();
    static std::optional<std::string> NameOf(std::string_view name);
    static bool IsName(std::string_view name);
    static bool Has(const Entity& entity, std::string_view name);

    std::string Get(std::string_view name, const Entity& entity) const;
    // Returns the text in the form that Get returns, or unchanged if it is not a valid value.
    std::string Normalized(std::string_view name, const std::string& text) const;
    // Throws SaveError if the text is not a value or the value cannot be set.
    static void Set(std::string_view name, const std::string& text, EntityEdit& edit);

private:
    const Document& document_;
};

// Reads coordinates as in "1,2,0". Throws SaveError.
Vec3 ReadPoint(const std::string& text);

} // namespace dxf
