// Values of a record's tags, and the list of findings.

#include "drawcore/src/dxf/record_reader.h"

#include <algorithm>
#include <cmath>

namespace dxf {

namespace {

bool SameName(std::string_view a, std::string_view upper) {
    return a.size() == upper.size() && std::equal(a.begin(), a.end(), upper.begin(), [](char c, char u) {
               return (c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c) == u;
           });
}

} // namespace

bool RecordReader::NextTag() {
    constexpr int kGroup = 102;
    constexpr int kEmbedded = 101;
    constexpr int kExtended = 1000;
    const Tag& tag = tags.Next();
    while (!tag.StartsRecord()) {
        if (tag.code == kEmbedded) {
            tags.SkipRecord();
        } else if (tag.code == kGroup && !tag.value.empty() && tag.value[0] == '{') {
            while (!tags.Next().StartsRecord() && !tag.Is(kGroup, "}")) {
            }
            if (!tag.StartsRecord()) tags.Next();
        } else if (tag.code >= kExtended) {
            tags.Next();
        } else {
            return true;
        }
    }
    return false;
}

double RecordReader::Real(const Tag& tag) {
    const double number = tag.Real();
    if (!std::isnan(number)) return number;
    if (unsound_ == 0) unsound_ = tag.line + 1;
    return 0;
}

void RecordReader::SetAxis(Vec3& point, const Tag& tag, int axis) {
    (axis == 0 ? point.x : axis == 10 ? point.y : point.z) = Real(tag);
}

uint32_t RecordReader::TakeUnsound() {
    const uint32_t line = unsound_;
    unsound_ = 0;
    return line;
}

void RecordReader::Report(uint32_t line, std::string text) {
    std::vector<Finding>& findings = document.findings;
    if (findings.size() < Document::kMostFindings) {
        findings.push_back({line, std::move(text)});
        return;
    }
    if (unreported_++ == 0) findings.emplace_back();
    findings.back().text = "and " + std::to_string(unreported_) + " more";
}

void RecordReader::Assign(int16_t& to, const Tag& tag, int) {
    to = static_cast<int16_t>(std::clamp<int>(tag.Integer(), INT16_MIN, INT16_MAX));
}

void RecordReader::Assign(uint32_t& to, const Tag& tag, int) {
    to = static_cast<uint32_t>(std::max(tag.Integer(), 0));
}

void RecordReader::Assign(LineTypeIndex& to, const Tag& tag, int) {
    if (SameName(tag.value, "BYLAYER"))
        to = LineTypeIndex::byLayer;
    else if (SameName(tag.value, "BYBLOCK"))
        to = LineTypeIndex::byBlock;
    else
        to = LineTypeIndex(lineTypes.Find(tag.value));
}

} // namespace dxf
