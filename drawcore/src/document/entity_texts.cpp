// Gets and sets values of entities as text, one table row per name.
#include "drawcore/src/document/entity_texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace dxf {

namespace {

std::vector<double> ReadNumbers(const std::string& text) {
    std::vector<double> numbers;
    const char *at = text.data(), *const end = at + text.size();
    while (at != end) {
        double number = 0;
        while (at != end && *at == ' ')
            ++at;
        const auto [stopped, error] = std::from_chars(at, end, number);
        if (error != std::errc() || !std::isfinite(number)) return {};
        numbers.push_back(number);
        at = stopped;
        while (at != end && *at == ' ')
            ++at;
        if (at == end) break;
        if (*at++ != ',' || at == end) return {};
    }
    return numbers;
}

// Returns the shortest text that is parsed back as the same number.
std::string NumberText(double number) {
    char text[32];
    const auto [end, error] = std::to_chars(text, text + sizeof text, number);
    return error == std::errc() ? std::string(text, end) : std::to_string(number);
}

std::string PointText(const Vec3& point) {
    return NumberText(point.x) + "," + NumberText(point.y) + "," + NumberText(point.z);
}

// Returns the text as it is read from the file again: characters that its code page lacks are escapes.
std::string StoredText(const Document& document, const std::string& text) {
    TextDecoder decoder;
    decoder.SetVersion(document.header.version);
    decoder.SetCodePage(document.header.codePage);
    return decoder.Decode(decoder.Encode(text));
}

Vec3 ReadScale(const std::string& text) {
    std::vector<double> factors = ReadNumbers(text);
    if (factors.size() == 1) factors.resize(3, factors[0]);
    if (factors.size() != 3 || std::count(factors.begin(), factors.end(), 0.0) != 0)
        throw SaveError("'" + text + "' is not a scale, such as 2 or 2,2,1");
    return {factors[0], factors[1], factors[2]};
}

double ReadRotation(const std::string& text) {
    const std::vector<double> angle = ReadNumbers(text);
    if (angle.size() != 1) throw SaveError("'" + text + "' is not an angle in degrees");
    return angle[0];
}

// In the file, a control character would end the text.
const std::string& RequireLine(const std::string& text) {
    if (HasControlCharacter(text))
        throw SaveError(
            "the text contains a line break or another control character; \\P starts a new line of a paragraph");
    return text;
}

struct Row {
    std::string_view name;
    bool (*has)(const Entity&);
    std::string (*get)(const Document&, const Entity&);
    void (*set)(const std::string&, EntityEdit&); // null: cannot be set
};

bool IsText(const Entity& entity) {
    return As<Text>(entity) || As<MText>(entity);
}

bool IsTagged(const Entity& entity) {
    const Text* text = As<Text>(entity);
    return text && text->role != Text::Role::text;
}

bool IsInsert(const Entity& entity) {
    const Insert* insert = As<Insert>(entity);
    return insert && insert->block != BlockIndex::none;
}

constexpr Row kRows[] = {
    {"Tag", IsTagged, [](const Document&, const Entity& entity) { return As<Text>(entity)->tag; }, nullptr},
    {"Text", IsText,
     [](const Document&, const Entity& entity) {
         const Text* line = As<Text>(entity);
         return line ? line->text : As<MText>(entity)->text;
     },
     [](const std::string& text, EntityEdit& edit) { edit.text = RequireLine(text); }},
    {"BlockName", IsInsert,
     [](const Document& document, const Entity& entity) {
         return ToDisplayText(document.At(As<Insert>(entity)->block).name);
     },
     nullptr},
    {"Position", [](const Entity& entity) { return PositionOf(entity).has_value(); },
     [](const Document&, const Entity& entity) { return PointText(*PositionOf(entity)); },
     [](const std::string& text, EntityEdit& edit) { edit.position = ReadPoint(text); }},
    {"Scale", IsInsert,
     [](const Document&, const Entity& entity) {
         const Insert& insert = *As<Insert>(entity);
         return PointText({insert.scaleX, insert.scaleY, insert.scaleZ});
     },
     [](const std::string& text, EntityEdit& edit) { edit.scale = ReadScale(text); }},
    {"Rotation", IsInsert,
     [](const Document&, const Entity& entity) { return NumberText(As<Insert>(entity)->rotation); },
     [](const std::string& text, EntityEdit& edit) { edit.rotation = ReadRotation(text); }},
};

const Row* Find(std::string_view name) {
    for (const Row& row : kRows)
        if (row.name.size() == name.size() && IsSameName(row.name, name)) return &row;
    return nullptr;
}

} // namespace

Insert EntityEdit::NumbersOf(const Insert& was) const {
    Insert insert;
    const Vec3 factors = scale.value_or(Vec3{was.scaleX, was.scaleY, was.scaleZ});
    insert.at = was.at;
    insert.scaleX = factors.x;
    insert.scaleY = factors.y;
    insert.scaleZ = factors.z;
    insert.rotation = rotation.value_or(was.rotation);
    return insert;
}

std::optional<AxisEnds> EntityEdit::EndsOf(const Entity& entity) const {
    if (!As<Insert>(entity) || (!position && !scale && !rotation)) return std::nullopt;
    AxisEnds ends = AxisEndsOf(entity);
    const Vec3 to = position.value_or(ends[0]);
    if (scale || rotation) { // ignoring a stored placement, which would contradict them
        Entity placed;
        placed.normal = entity.normal;
        placed.shape = std::make_unique<Insert>(NumbersOf(*As<Insert>(entity)));
        ends = AxisEndsOf(placed);
    }
    const Vec3 motion = to - ends[0];
    for (Vec3& end : ends)
        end = end + motion;
    ends[0] = to; // avoids the rounding error of the sum
    return ends;
}

bool EntityEdit::Moves(const Entity& entity) const {
    const std::optional<Vec3> was = PositionOf(entity);
    return position && was && !As<Insert>(entity) && !(*was == *position);
}

Vec3 ReadPoint(const std::string& text) {
    std::vector<double> numbers = ReadNumbers(text);
    if (numbers.size() == 2) numbers.push_back(0);
    if (numbers.size() != 3) throw SaveError("'" + text + "' is not a point, such as 1.5,2 or 1.5,2,0");
    return {numbers[0], numbers[1], numbers[2]};
}

std::vector<std::string> EntityTexts::Names() {
    std::vector<std::string> names;
    for (const Row& row : kRows)
        names.emplace_back(row.name);
    return names;
}

std::optional<std::string> EntityTexts::NameOf(std::string_view name) {
    const Row* row = Find(name);
    return row ? std::optional<std::string>(std::in_place, row->name) : std::nullopt;
}

bool EntityTexts::IsName(std::string_view name) {
    return Find(name) != nullptr;
}

bool EntityTexts::Has(const Entity& entity, std::string_view name) {
    const Row* row = Find(name);
    return row && row->has(entity);
}

std::string EntityTexts::Get(std::string_view name, const Entity& entity) const {
    return Find(name)->get(document_, entity);
}

std::string EntityTexts::Normalized(std::string_view name, const std::string& text) const {
    const Row& row = *Find(name);
    if (!row.set) return text;
    EntityEdit edit;
    try {
        row.set(text, edit);
    } catch (const SaveError&) {
        return text;
    }
    return edit.position   ? PointText(*edit.position)
           : edit.scale    ? PointText(*edit.scale)
           : edit.rotation ? NumberText(*edit.rotation)
           : edit.text     ? StoredText(document_, *edit.text)
                           : text;
}

void EntityTexts::Set(std::string_view name, const std::string& text, EntityEdit& edit) {
    const Row& row = *Find(name);
    if (!row.set) throw SaveError(std::string(row.name) + " cannot be set");
    try {
        row.set(text, edit);
    } catch (const SaveError& error) {
        throw SaveError(std::string(row.name) + ": " + error.what());
    }
}

} // namespace dxf
