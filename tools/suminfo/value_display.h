// A property as a person reads it: its name and its value on one line.
#pragma once

#include <string>

#include "orlo/propset/set_image.h"

namespace suminfo {

// The field's name, the name of the section's dictionary, or "property 12".
std::string PropertyName(const orlo::ImageSection& section, uint32_t id);
// "2004-02-03 10:20:30 UTC", "metafile picture, 1234 bytes", "yes", ...; damaged ones say so.
std::string PropertyShown(const orlo::ImageSection& section, const orlo::ImageProperty& property);

} // namespace suminfo
