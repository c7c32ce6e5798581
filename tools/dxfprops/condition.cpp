// Parses conditions, and compares values in the format in which the property is shown, numbers as numbers.
#include "tools/dxfprops/condition.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "tools/cli/wildcard.h"

namespace dxfprops {

namespace {

struct Operator {
    std::string_view text;
    Comparison comparison;
};
// Longer operators come first, because shorter ones are their prefixes.
constexpr std::array kOperators = {
    Operator{"!=", Comparison::unequal},
    Operator{"<=", Comparison::lessOrEqual},
    Operator{">=", Comparison::greaterOrEqual},
    Operator{"=", Comparison::equal},
    Operator{"<", Comparison::less},
    Operator{">", Comparison::greater},
    Operator{"~", Comparison::like},
};
constexpr const char* kOrdered[] = {"PenWidth", "PenScale", "BrushScale", "BrushAngle", "TextSize", "Rotation"};

// Splits the text at separators outside of quotes. The quotes remain in the result.
std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    bool isQuoted = false;
    for (const char c : text) {
        if (c == '"') isQuoted = !isQuoted;
        if (c == separator && !isQuoted)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    if (isQuoted) throw std::invalid_argument("'" + text + "': unclosed quote");
    return parts;
}

std::string Trimmed(const std::string& text) {
    const size_t first = text.find_first_not_of(' ');
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

// Removes the spaces around a value, then its quotes.
std::string Unquoted(const std::string& text) {
    std::string plain = Trimmed(text);
    plain.erase(std::remove(plain.begin(), plain.end(), '"'), plain.end());
    return plain;
}

bool IsOrdering(Comparison comparison) {
    return comparison != Comparison::equal && comparison != Comparison::unequal && comparison != Comparison::like;
}

Condition ReadCondition(const std::string& text) {
    const size_t at = text.find_first_of("!=<>~");
    const Operator* found = nullptr;
    for (const Operator& candidate : kOperators)
        if (!found && at != text.npos && at > 0 && text.compare(at, candidate.text.size(), candidate.text) == 0)
            found = &candidate;
    if (!found)
        throw std::invalid_argument("'" + text +
                                    "' is not a condition, such as kind=LINE or PenWidth>0.5; a value with " +
                                    "a comma needs quotes: 'PenColor=\"0,0,255\"'");
    Condition condition = {RequireName(Trimmed(text.substr(0, at)), true), found->comparison, {}};
    for (const std::string& value : Split(text.substr(at + found->text.size()), '|'))
        condition.values.push_back(Unquoted(value));
    const auto isIt = [&](const char* name) { return condition.name == name; };
    if (IsOrdering(condition.comparison) && std::none_of(std::begin(kOrdered), std::end(kOrdered), isIt))
        throw std::invalid_argument("'" + text + "': " + condition.name + " can only be compared with =, != and ~");
    return condition;
}

std::u32string FoldedUnits(std::string_view utf8) {
    std::u32string units;
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) == 0x80 && !units.empty()) // continues the character
            units.back() = units.back() << 6 | (byte & 0x3F);
        else
            units += c >= 'A' && c <= 'Z' ? static_cast<char32_t>(c + 32) : char32_t{byte};
    }
    return units;
}

bool IsConditionName(const std::string& name) {
    return name == kKind || name == kHandle || name == kBlock;
}

std::string NamePart(const dxf::RecordName& name, const std::string& condition) {
    return condition == kKind ? name.kind : condition == kHandle ? name.handle : name.block;
}

bool IsInOrder(Comparison comparison, double a, double b) {
    switch (comparison) {
    case Comparison::less:
        return a < b;
    case Comparison::lessOrEqual:
        return a <= b;
    case Comparison::greater:
        return a > b;
    default:
        return a >= b;
    }
}

} // namespace

bool MatchesWildcards(const std::string& text, const std::string& pattern) {
    const std::u32string folded = FoldedUnits(text), wanted = FoldedUnits(pattern);
    return cli::MatchesWildcard<char32_t>(wanted, folded, std::equal_to<char32_t>());
}

std::string RequireName(const std::string& name, bool allowConditions) {
    for (const char* condition : {kKind, kHandle, kBlock})
        if (allowConditions && dxf::IsSameName(name, condition)) return condition;
    if (const auto known = dxf::DocumentReader::FindPropertyName(name)) return *known;
    std::string names = allowConditions ? "kind, handle, block" : "";
    for (const std::string& property : dxf::DocumentReader::PropertyNames())
        names += (names.empty() ? "" : ", ") + property;
    throw std::invalid_argument("'" + name + "' is not one of " + names);
}

std::vector<Condition> ReadConditions(const std::vector<std::string>& texts) {
    std::vector<Condition> conditions;
    for (const std::string& text : texts)
        for (const std::string& part : Split(text, ','))
            conditions.push_back(ReadCondition(part));
    return conditions;
}

const std::string& ConditionTest::Normalized(const dxf::EntityRef& entity, const Condition& condition,
                                             const std::string& wanted) {
    const auto [found, isNew] = normalized_.try_emplace({condition.name, wanted});
    if (isNew || condition.name == "PenWidth") // its format depends on the scale system of the entity
        found->second = drawing_.Normalized(entity, condition.name, wanted);
    return found->second;
}

bool ConditionTest::Fits(const dxf::EntityRef& entity, const Condition& condition, const std::string& text,
                         const std::string& wanted) {
    if (condition.comparison == Comparison::like) return MatchesWildcards(text, wanted);
    if (IsOrdering(condition.comparison)) {
        const auto is = drawing_.NumberOf(entity, condition.name, text);
        const auto limit = drawing_.NumberOf(entity, condition.name, wanted);
        if (is && !limit) throw dxf::SaveError("'" + wanted + "' is not a number that " + condition.name + " can have");
        return is && IsInOrder(condition.comparison, *is, *limit);
    }
    const bool isProperty = !IsConditionName(condition.name);
    return dxf::IsSameName(text, wanted) ||
           (isProperty && dxf::IsSameName(text, Normalized(entity, condition, wanted)));
}

bool ConditionTest::Meets(const dxf::EntityRef& entity) {
    return std::all_of(where_.begin(), where_.end(), [&](const Condition& condition) {
        const bool isProperty = !IsConditionName(condition.name);
        if (isProperty && !dxf::DocumentReader::Has(entity, condition.name)) return false;
        const std::string text =
            isProperty ? drawing_.Get(entity, condition.name) : NamePart(drawing_.NameOf(entity), condition.name);
        const bool fitsOne =
            std::any_of(condition.values.begin(), condition.values.end(),
                        [&](const std::string& wanted) { return Fits(entity, condition, text, wanted); });
        return fitsOne != (condition.comparison == Comparison::unequal);
    });
}

} // namespace dxfprops
