// Conditions that select entities: "kind=LINE|ARC", "PenWidth>=0.5 mm", "layer~W*".
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "drawcore/dxf_document.h"

namespace dxfprops {

// Names of conditions that are not properties.
constexpr char kKind[] = "kind", kHandle[] = "handle", kBlock[] = "block";

enum class Comparison { equal, unequal, less, lessOrEqual, greater, greaterOrEqual, like };

struct Condition {
    std::string name; // in its canonical spelling
    Comparison comparison;
    std::vector<std::string> values; // one of them must match; for "!=", none may match
};

// Parses conditions separated by commas. Values that contain a comma or a bar are in quotes. Throws
// std::invalid_argument.
std::vector<Condition> ReadConditions(const std::vector<std::string>& texts);

// Tests the entities of one drawing. The drawing and the conditions must outlive this object.
class ConditionTest {
public:
    ConditionTest(const dxf::DocumentReader& drawing, const std::vector<Condition>& where)
        : drawing_(drawing), where_(where) {}

    // Returns whether the entity meets all conditions. An entity without the property never meets a condition. Throws
    // SaveError if the value of a condition that compares numbers is not a number.
    bool Meets(const dxf::EntityRef& entity);

private:
    bool Fits(const dxf::EntityRef& entity, const Condition& condition, const std::string& text,
              const std::string& wanted);
    // Returns the requested value in the format of the property, which for most properties is the same for all
    // entities.
    const std::string& Normalized(const dxf::EntityRef& entity, const Condition& condition, const std::string& wanted);

    const dxf::DocumentReader& drawing_;
    const std::vector<Condition>& where_;
    std::map<std::pair<std::string, std::string>, std::string> normalized_; // by names and wanted values
};

// Returns whether the text matches a name with wildcards, ignoring case.
bool MatchesWildcards(const std::string& text, const std::string& pattern);

// Returns the canonical spelling of the name of a property or, if allowed, of a condition. Throws
// std::invalid_argument.
std::string RequireName(const std::string& name, bool allowConditions);

} // namespace dxfprops
