// Measures a value: where it ends, and whether its elements are padded.

#include "orlo/propset/value_walk.h"

namespace orlo {

namespace {

// A possible layout of a vector: where it ends, and how many of its texts end with a NUL, as nearly all texts do.
struct Layout {
    size_t size;
    size_t terminatedTexts;
};

std::optional<Layout> Measure(uint32_t type, const uint8_t* bytes, size_t size, bool padded) {
    Cursor cursor{bytes, size};
    Layout layout{0, 0};
    const auto count = [&layout](uint32_t, const TypeForm& form, std::string_view text) {
        if (form.isText && !text.empty() && text.back() == '\0') ++layout.terminatedTexts;
        return true;
    };
    if (!Walk(cursor, type, padded, count)) return std::nullopt;
    layout.size = static_cast<size_t>(cursor.at - bytes);
    return layout;
}

} // namespace

std::optional<size_t> StoredSize(uint32_t type, const uint8_t* block, size_t blockSize) {
    if (!FormOf(BaseType(type)).inProperty) return std::nullopt;
    Cursor cursor{block, blockSize};
    const auto accept = [](uint32_t, const TypeForm&, std::string_view) { return true; };
    const bool isWhole = BaseType(type) == VT_EMPTY // elements without bytes
                             ? !IsVector(type) || cursor.Take(4) != nullptr
                             : Walk(cursor, type, false, accept);
    return isWhole ? std::optional(static_cast<size_t>(cursor.at - block)) : std::nullopt;
}

std::optional<Extent> MeasureValue(uint32_t type, const uint8_t* bytes, size_t size) {
    const std::optional<Layout> packed = Measure(type, bytes, size, false);
    const bool mayBePadded = IsVector(type) && SmallestElement(BaseType(type)) == 4;
    const std::optional<Layout> padded = mayBePadded ? Measure(type, bytes, size, true) : std::nullopt;
    if (padded && (!packed || padded->terminatedTexts > packed->terminatedTexts)) return Extent{padded->size, true};
    if (packed) return Extent{packed->size, false};
    return std::nullopt;
}

} // namespace orlo
