// Formats a property for display: its name and its value on one line.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "orlo/propset/inspect/set_image.h"

namespace suminfo {

// The names of a section's properties. The section must outlive this object.
class PropertyNames {
public:
    explicit PropertyNames(const orlo::ImageSection& section);

    // Returns the name from the section's dictionary, the field's name, or "property 12".
    std::string Of(uint32_t id) const;

private:
    const GUID& format_;
    std::unordered_map<uint32_t, const std::string*> dictionary_;
};
// Returns for example "2004-02-03 10:20:30 UTC", "metafile picture, 1234 bytes", or "yes"; damaged values are marked.
std::string PropertyShown(const orlo::ImageSection& section, const orlo::ImageProperty& property);

} // namespace suminfo
