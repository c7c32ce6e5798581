// Texts for property values as shown on the pages of the sheet: markers, choices, text effects, colors.
#pragma once

#include <string>
#include <vector>

#include "orlo/host/words.h"

namespace drawcore {

struct PropertyWord {
    uint32_t value;
    const char* text;
};

// Returns the texts for values with that meaning: choices, markers or, for text styles, bits.
const std::vector<PropertyWord>& WordsOf(PropertyMeaning meaning);
// Returns the text for a value, or null.
const char* WordOf(PropertyMeaning meaning, uint32_t value);

// Returns "Bold+Underline"; "Regular" without effects.
std::string TextStyleText(uint32_t bits);
// Returns the text for a marker, the name of a numbered color, or "#RRGGBB".
std::string ColorText(uint32_t color);
// Returns the text of a whole number as the value of a property: one of these, or the number.
std::string IntegerText(const PropertyInfo& property, uint32_t value);

} // namespace drawcore
