// Decodes and encodes values, type by type.

#include "orlo/propset/inspect/value.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "orlo/propset/code_page.h"
#include "orlo/propset/image_writer.h"
#include "orlo/propset/value_walk.h"

namespace orlo {

namespace {

template <class Number>
Number Load(std::string_view bytes) {
    Number number;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

bool DecodeText(std::string_view bytes, uint16_t codePage, Value& value) {
    if (codePage == kCodePageUtf16) {
        size_t end = 0;
        while (end + 2 <= bytes.size() && (bytes[end] != '\0' || bytes[end + 1] != '\0'))
            end += 2;
        bytes = bytes.substr(0, end);
    } else {
        bytes = bytes.substr(0, bytes.find('\0'));
    }
    std::optional<std::string> text = CodePageToUtf8(bytes, codePage);
    if (!text) return false;
    value.data = std::move(*text);
    return true;
}

Bytes ToBytes(std::string_view bytes) {
    return Bytes(bytes.begin(), bytes.end());
}

bool DecodeClipboard(std::string_view bytes, Value& value) {
    if (bytes.size() < 4) return false;
    ClipboardData clip{Load<int32_t>(bytes), 0, {}};
    bytes.remove_prefix(4);
    if (clip.tag == -1 || clip.tag == -2) {
        if (bytes.size() < 4) return false;
        clip.format = Load<uint32_t>(bytes);
        bytes.remove_prefix(4);
    }
    clip.data = ToBytes(bytes);
    value.data = std::move(clip);
    return true;
}

bool IsOneOf(std::initializer_list<uint32_t> types, uint32_t type) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

uint64_t LoadInteger(std::string_view bytes) {
    uint64_t number = 0;
    std::memcpy(&number, bytes.data(), bytes.size());
    return number;
}

int64_t LoadSigned(std::string_view bytes) {
    const size_t unused = 64 - 8 * bytes.size();
    return static_cast<int64_t>(LoadInteger(bytes) << unused) >> unused; // sign extension
}

bool DecodeElement(uint32_t type, const TypeForm& form, std::string_view bytes, uint16_t codePage, Value& value) {
    value.type = type;
    if (type == VT_EMPTY || type == VT_NULL) return true;
    if (form.isText) return DecodeText(bytes, type == VT_LPWSTR ? kCodePageUtf16 : codePage, value);
    if (type == VT_CF) return DecodeClipboard(bytes, value);
    if (type == VT_BOOL)
        value.data = LoadInteger(bytes) != 0;
    else if (IsSignedType(type))
        value.data = LoadSigned(bytes);
    else if (IsUnsignedType(type))
        value.data = LoadInteger(bytes);
    else if (type == VT_R4)
        value.data = double{Load<float>(bytes)};
    else if (type == VT_R8 || type == VT_DATE)
        value.data = Load<double>(bytes);
    else if (type == VT_CLSID)
        value.data = Load<GUID>(bytes);
    else
        value.data = ToBytes(bytes);
    return true;
}

// Encodes an integer of that size if it is in range.
bool EncodeInteger(const Value& value, uint8_t size, ImageWriter& image) {
    if (const auto* number = std::get_if<uint64_t>(&value.data)) {
        if (size < 8 && *number >> (8 * size) != 0) return false;
        image.Put(number, size);
        return true;
    }
    if (const auto* number = std::get_if<int64_t>(&value.data)) {
        const int64_t sign = *number >> (8 * size - 1); // all bits equal if the value is in range
        if (sign != 0 && sign != -1) return false;
        image.Put(number, size);
        return true;
    }
    return false;
}

bool EncodeReal(const Value& value, uint8_t size, ImageWriter& image) {
    const auto* number = std::get_if<double>(&value.data);
    if (number == nullptr) return false;
    const auto narrow = static_cast<float>(*number);
    if (size == sizeof narrow)
        image.Put(&narrow, size);
    else
        image.Put(number, size);
    return true;
}

bool EncodeText(const Value& value, uint16_t codePage, ImageWriter& image) {
    const auto* utf8 = std::get_if<std::string>(&value.data);
    const bool isWide = codePage == kCodePageUtf16;
    const std::optional<std::string> text = utf8 != nullptr ? Utf8ToCodePage(*utf8, codePage) : std::nullopt;
    if (!text) return false;
    const size_t size = text->size() + (isWide ? 2 : 1);
    image.Put32(static_cast<uint32_t>(isWide && value.type == VT_LPWSTR ? size / 2 : size));
    image.Put(text->data(), text->size());
    image.PutZeros(size - text->size());
    return true;
}

bool EncodeClipboard(const Value& value, ImageWriter& image) {
    const auto* clip = std::get_if<ClipboardData>(&value.data);
    if (clip == nullptr) return false;
    const bool hasFormat = clip->tag == -1 || clip->tag == -2;
    image.Put32(static_cast<uint32_t>(clip->data.size() + (hasFormat ? 8 : 4)));
    image.Put32(static_cast<uint32_t>(clip->tag));
    if (hasFormat) image.Put32(clip->format);
    image.Put(clip->data.data(), clip->data.size());
    return true;
}

bool EncodeBytes(const Value& value, const TypeForm& form, ImageWriter& image) {
    const auto* bytes = std::get_if<Bytes>(&value.data);
    if (bytes == nullptr || (form.form == Form::fixed && bytes->size() != form.size)) return false;
    if (form.form == Form::bytes) image.Put32(static_cast<uint32_t>(bytes->size()));
    image.Put(bytes->data(), bytes->size());
    return true;
}

bool EncodeBool(const Value& value, ImageWriter& image) {
    const auto* truth = std::get_if<bool>(&value.data);
    if (truth != nullptr) image.Put32(*truth ? 0xFFFF : 0);
    return truth != nullptr;
}

bool EncodeGuid(const Value& value, ImageWriter& image) {
    const auto* guid = std::get_if<GUID>(&value.data);
    if (guid != nullptr) image.Put(guid, sizeof *guid);
    return guid != nullptr;
}

bool EncodeElement(const Value& value, uint16_t codePage, ImageWriter& image) {
    const TypeForm& form = FormOf(value.type);
    if (form.form == Form::none) return false;
    if (form.isText) return EncodeText(value, value.type == VT_LPWSTR ? kCodePageUtf16 : codePage, image);
    switch (value.type) {
    case VT_EMPTY:
    case VT_NULL:
        return true;
    case VT_BOOL:
        return EncodeBool(value, image);
    case VT_R4:
    case VT_R8:
    case VT_DATE:
        return EncodeReal(value, form.size, image);
    case VT_CLSID:
        return EncodeGuid(value, image);
    case VT_CF:
        return EncodeClipboard(value, image);
    default:
        const bool isNumber = form.form == Form::fixed && value.type != VT_DECIMAL;
        return isNumber ? EncodeInteger(value, form.size, image) : EncodeBytes(value, form, image);
    }
}

} // namespace

bool IsSignedType(uint32_t type) {
    return IsOneOf({VT_I1, VT_I2, VT_I4, VT_INT, VT_ERROR, VT_I8, VT_CY}, type);
}

bool IsUnsignedType(uint32_t type) {
    return IsOneOf({VT_UI1, VT_UI2, VT_UI4, VT_UINT, VT_UI8, VT_FILETIME}, type);
}

bool DecodeValue(uint32_t type, const uint8_t* bytes, size_t size, std::optional<uint16_t> codePage, Value& value) {
    const std::optional<Extent> extent = MeasureValue(type, bytes, size);
    if (!extent) return false;
    Value decoded;
    decoded.type = type;
    Cursor cursor{bytes, size};
    const auto decode = [&](uint32_t elementType, const TypeForm& form, std::string_view element) {
        Value& target = IsVector(type) ? decoded.elements.emplace_back() : decoded;
        return DecodeElement(elementType, form, element, codePage.value_or(kUsualCodePage), target);
    };
    if (!Walk(cursor, type, extent->elementsPadded, decode)) return false;
    value = std::move(decoded);
    return true;
}

std::optional<Bytes> EncodeValue(const Value& value, std::optional<uint16_t> codePage) {
    const uint16_t page = codePage.value_or(kUsualCodePage);
    ImageWriter image;
    if (!IsVector(value.type)) {
        if (!EncodeElement(value, page, image)) return std::nullopt;
        return image.Take();
    }
    const uint32_t base = BaseType(value.type);
    if (SmallestElement(base) == 0) return std::nullopt;
    image.Put32(static_cast<uint32_t>(value.elements.size()));
    for (const Value& element : value.elements) {
        if (base == VT_VARIANT)
            image.Put32(element.type);
        else if (element.type != base)
            return std::nullopt;
        if (!EncodeElement(element, page, image)) return std::nullopt;
    }
    return image.Take();
}

std::string GuidText(const GUID& guid) {
    char text[40];
    const uint8_t* tail = guid.Data4;
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, tail[0], tail[1], tail[2], tail[3],
                  tail[4], tail[5], tail[6], tail[7]);
    return text;
}

std::string TypeName(uint32_t type) {
    const char* name = BaseType(type) == VT_VARIANT ? "VT_VARIANT" : FormOf(BaseType(type)).name;
    if (name != nullptr) return (IsVector(type) ? "VT_VECTOR | " : "") + std::string(name);
    char number[24];
    std::snprintf(number, sizeof number, "type 0x%04X", static_cast<unsigned>(type));
    return number;
}

} // namespace orlo
