// Builds a stored value from the tokens of a text.

#include "orlo/propset/stored_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "orlo/propset/code_page.h"
#include "orlo/propset/image_writer.h"
#include "orlo/propset/tokens.h"
#include "orlo/propset/value_form.h"
#include "orlo/propset/value_text.h"

namespace orlo {

namespace {

// Returns the number at the start, clamped to 32 bits, or 0 if there is none.
int32_t ParseInteger(const char* token) {
    return static_cast<int32_t>(std::clamp<long long>(std::strtoll(token, nullptr, 10), INT32_MIN, INT32_MAX));
}

// Returns the real number at the start, with "." as decimal point in any locale, or 0 if there is none or it is out of
// range.
double ParseReal(std::string_view token) {
    while (!token.empty() && std::isspace(static_cast<unsigned char>(token.front())))
        token.remove_prefix(1);
    const bool isNegative = !token.empty() && token.front() == '-';
    const std::string_view digits = token.substr(token.find_first_not_of("+-") == 1 ? 1 : 0);
    const bool isNumber =
        !digits.empty() && (std::isdigit(static_cast<unsigned char>(digits.front())) || digits.front() == '.');
    double number = 0;
    if (isNumber) std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return isNegative ? -number : number;
}

void PutCounted(ImageWriter& image, const char* token) {
    const size_t size = std::strlen(token) + 1;
    image.Put32(static_cast<uint32_t>(size));
    image.Put(token, size);
}

bool PutWide(ImageWriter& image, const char* token) {
    const std::optional<std::string> utf8 = CodePageToUtf8(token, 0);
    const std::optional<std::string> wide = utf8 ? Utf8ToCodePage(*utf8, kCodePageUtf16) : std::nullopt;
    if (!wide) return false;
    image.Put32(static_cast<uint32_t>(wide->size() / 2 + 1));
    image.Put(wide->data(), wide->size());
    image.Put16(0);
    return true;
}

bool PutElement(ImageWriter& image, const char* token, DWORD type) {
    switch (type) {
    case VT_EMPTY:
        return true;
    case VT_I2:
    case VT_UI2:
        image.Put16(static_cast<uint16_t>(ParseInteger(token)));
        return true;
    case VT_I4:
    case VT_UI4:
    case VT_BOOL:
        image.Put32(static_cast<uint32_t>(ParseInteger(token)));
        return true;
    case VT_R4: {
        const auto number = static_cast<float>(ParseReal(token));
        image.Put(&number, sizeof number);
        return true;
    }
    case VT_R8: {
        const double number = ParseReal(token);
        image.Put(&number, sizeof number);
        return true;
    }
    case VT_LPWSTR:
        return PutWide(image, token);
    default:
        break;
    }
    const TypeForm& form = FormOf(type);
    if (form.form == Form::bytes) {
        PutCounted(image, token);
        return true;
    }
    uint8_t element[16];
    if (!ParseValueText(token, type, element)) return false;
    image.Put(element, form.size);
    return true;
}

} // namespace

std::optional<std::vector<BYTE>> StoredFromText(const char* text, DWORD type) {
    const DWORD base = BaseType(type);
    if (!FormOf(base).inProperty) return std::nullopt;
    std::vector<char> copy(text, text + std::strlen(text) + 1); // GetToken modifies it
    char* cursor = copy.data();
    ImageWriter image;
    int count = 1;
    if (IsVector(type)) {
        count = CountTokens(cursor);
        image.Put32(static_cast<uint32_t>(count));
    }
    for (; count > 0; --count)
        if (!PutElement(image, GetToken(cursor), base)) return std::nullopt;
    return image.Take();
}

} // namespace orlo
