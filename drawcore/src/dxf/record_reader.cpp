// Reads the values of a record's tags, and collects warnings.

#include "drawcore/src/dxf/record_reader.h"

#include <algorithm>
#include <cmath>

namespace dxf {

RecordReader::RecordReader(std::string_view bytes, Document known)
    : tags(bytes), document(std::move(known)), decoder(document.header.version, document.header.codePage) {}

bool RecordReader::NextTag() {
    const Tag& tag = tags.Next();
    while (!tag.StartsRecord()) {
        if (tag.code == kEmbedded) {
            while (!tags.Next().StartsRecord() && tag.code < kExtended) {
            }
        } else if (tag.code == kGroup && !tag.value.empty() && tag.value[0] == '{') {
            while (!tags.Next().StartsRecord() && !tag.Is(kGroup, "}")) {
            }
            if (!tag.StartsRecord()) tags.Next();
        } else if (tag.code >= kExtended) {
            ReadExtended();
        } else {
            return true;
        }
    }
    return false;
}

void RecordReader::ReadExtended() {
    if (!tags.Current().Is(kApplicationName, kApplication)) {
        tags.Next();
        return;
    }
    extended_ = std::make_unique<ExtendedData>();
    const Tag& tag = tags.Next();
    while (tag.code >= kExtended && tag.code != kApplicationName) {
        if (tag.code == kExtendedText)
            extended_->push_back(ReadExtendedValue());
        else
            tags.Next();
    }
}

// Reads a name and its values in braces: numbers, or the pieces of one text.
ExtendedValue RecordReader::ReadExtendedValue() {
    ExtendedValue value{Text(tags.Current()), {}, {}};
    const Tag& tag = tags.Next();
    if (!tag.Is(kExtendedBrace, "{")) return value;
    std::string bytes;
    while (tags.Next().code >= kExtended && tag.code != kApplicationName && tag.code != kExtendedBrace) {
        if (tag.code == kExtendedText) bytes += tag.value;
        if (tag.code == kExtendedReal) value.numbers.push_back(tag.Real());
    }
    if (tag.code == kExtendedBrace) tags.Next();
    const auto isNone = [](double number) { return !std::isfinite(number); };
    if (std::any_of(value.numbers.begin(), value.numbers.end(), isNone)) value.numbers.clear();
    value.text = ReadExtendedText(decoder.Decode(bytes));
    return value;
}

double RecordReader::Real(const Tag& tag) {
    const double number = tag.Real();
    if (!std::isnan(number)) return number;
    if (invalidCoordinateLine_ == 0) invalidCoordinateLine_ = tag.line + 1;
    return 0;
}

void RecordReader::SetAxis(Vec3& point, const Tag& tag, int axis) {
    (axis == 0 ? point.x : axis == 10 ? point.y : point.z) = Real(tag);
}

bool RecordReader::AddCoordinate(std::vector<Vec3>& points, const Tag& tag, int code, int lastAxis) {
    const int axis = tag.code - code;
    if (axis < 0 || axis > lastAxis || axis % 10 != 0) return false;
    if (axis == 0) points.emplace_back();
    if (!points.empty()) SetAxis(points.back(), tag, axis);
    return true;
}

uint32_t RecordReader::TakeInvalidCoordinate() {
    const uint32_t line = invalidCoordinateLine_;
    invalidCoordinateLine_ = 0;
    return line;
}

void RecordReader::Report(uint32_t line, std::string text) {
    std::vector<Warning>& warnings = document.warnings;
    if (warnings.size() < Document::kMaxWarnings) {
        warnings.push_back({line, std::move(text)});
        return;
    }
    if (unreported_++ == 0) warnings.emplace_back();
    warnings.back().text = "and " + std::to_string(unreported_) + " more";
}

void RecordReader::Assign(int16_t& to, const Tag& tag, int) {
    to = static_cast<int16_t>(std::clamp<int>(tag.Integer(), INT16_MIN, INT16_MAX));
}

void RecordReader::Assign(uint32_t& to, const Tag& tag, int) {
    to = static_cast<uint32_t>(std::max(tag.Integer(), 0));
}

void RecordReader::Assign(LineTypeIndex& to, const Tag& tag, int) {
    if (IsSameName(tag.value, "BYLAYER"))
        to = LineTypeIndex::byLayer;
    else if (IsSameName(tag.value, "BYBLOCK"))
        to = LineTypeIndex::byBlock;
    else
        to = LineTypeIndex(lineTypes.Find(tag.value));
}

} // namespace dxf
