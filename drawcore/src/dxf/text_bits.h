// What the numbers of a text's style and format mean, in drawings and in the database.
#pragma once

#include <cstdint>

namespace drawcore {

// Bits of the style.
enum : uint16_t {
    kTextItalic = 0x0001,
    kTextBold = 0x0002,
    kTextStrikethrough = 0x0004,
    kTextHidden = 0x0008,
    kTextAllCaps = 0x0040,
    kTextUnderline = 0x0100,
    kTextBox = 0x1000,
};

enum : uint16_t { kTextLeft = 0, kTextCenter = 1, kTextRight = 2 };

} // namespace drawcore
