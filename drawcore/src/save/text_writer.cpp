// Writes texts: face, height, effects, justification and position.
#include <cmath>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/save/appearance_writer.h"

namespace dxf {

using namespace drawcore; // bits of texts, angles

namespace {

constexpr uint16_t kStyleBits = kTextBold | kTextItalic;
constexpr int kBackward = 2, kUpsideDown = 4; // in group 71
constexpr int kHidden = 1;                    // in group 70 of an attribute

bool IsFitted(const Text& text) {
    return text.horizontal == Text::Horizontal::aligned || text.horizontal == Text::Horizontal::fit;
}

double RoundedDegrees(double radians) {
    const double degrees = Degrees(radians), round = std::round(degrees * 1e9) / 1e9;
    return Near(round, degrees) ? round : degrees;
}

double AngleOf(const Vec3& v) {
    return std::atan2(v.y, v.x);
}

// Keeps the old number for an angle that differs only by rounding and full turns.
double ChangedAngle(double was, double now) {
    const double rotation = std::remainder(now - was, 360);
    return SameToRounding(rotation, 0, 360) ? was : std::remainder(now, 360);
}

Vec3 Direction(double radians) {
    return {std::cos(radians), std::sin(radians), 0};
}

// Returns whether a face name can be used in an inline code, which certain characters would end.
bool IsNameForCode(const std::string& family) {
    return !family.empty() && family.find_first_of("\\{}|;") == family.npos;
}

} // namespace

void AppearanceWriter::PutContents(const std::string& contents) {
    if (auto* text = As<Text>(entity_)) text->text = contents;
    if (auto* text = As<MText>(entity_)) text->text = contents;
}

void AppearanceWriter::WriteText(const Appearance& wanted) {
    if (auto* text = As<Text>(entity_)) WriteLine(*text, wanted);
    if (auto* text = As<MText>(entity_)) WriteParagraphs(*text, wanted);
}

void AppearanceWriter::WriteEffects(const TextAppearance& wanted) {
    RemoveExtended(kPropTextStyle);
    const TextAppearance inGroups = AppearanceByGroups(drawing_.Known(), entity_).text;
    if (const int missing = wanted.style & ~inGroups.style)
        ExtendedNumbers(kPropTextStyle, {static_cast<double>(missing)});
    RemoveExtended(kPropTextFont);
    if (inGroups.font != wanted.font) ExtendedText(kPropTextFont, wanted.font);
    RemoveExtended(kPropTextFormat);
    if (inGroups.format != wanted.format) ExtendedNumbers(kPropTextFormat, {static_cast<double>(wanted.format)});
}

void AppearanceWriter::WriteLine(Text& text, const Appearance& appearance) {
    const TextAppearance& wanted = appearance.text;
    const bool forAll = Now().varied & ~appearance.varied & kVariedStyle;
    const TextAppearance inGroups = AppearanceByGroups(drawing_.Known(), entity_).text;
    if (inGroups.height != wanted.height) text.height = wanted.height;
    if (inGroups.font != wanted.font || (inGroups.style ^ wanted.style) & kStyleBits)
        PutFace(text, {wanted.font, static_cast<uint16_t>(wanted.style & kStyleBits)});
    if (inGroups.format != wanted.format && !IsFitted(text)) PutFormat(text, wanted.format);
    if (text.role != Text::Role::definition) { // a definition displays its tag, which is a name
        PutSwitch(text.text, 'u', inGroups.style & kTextUnderline, wanted.style & kTextUnderline, forAll);
        PutSwitch(text.text, 'k', inGroups.style & kTextStrikethrough, wanted.style & kTextStrikethrough, forAll);
    }
    if (text.role == Text::Role::attribute) text.hidden = (wanted.style & kTextHidden) != 0;
    WriteEffects(wanted);
}

void AppearanceWriter::PutSwitch(std::string& text, char letter, bool was, bool wanted, bool forAll) {
    if (was == wanted && !forAll) return;
    text = WithoutSwitch(text, letter);
    if (wanted) text.insert(0, std::string("%%") + letter);
}

void AppearanceWriter::PutFace(Text& text, const FontFace& face) {
    const std::string style = drawing_.TextStyleFor(face);
    if (!style.empty()) text.style = TextStyleIndex(drawing_.in_.textStyles.FindUtf8(style));
}

// The insertion point does not move.
void AppearanceWriter::PutFormat(Text& text, uint16_t format) {
    const Vec3 position = IsPlacedByInsertion(text) ? text.insertion : text.alignment;
    constexpr Text::Horizontal kFormats[] = {Text::Horizontal::left, Text::Horizontal::center, Text::Horizontal::right};
    if (text.horizontal == Text::Horizontal::middle) text.vertical = Text::Vertical::middle;
    text.horizontal = kFormats[format];
    (IsPlacedByInsertion(text) ? text.insertion : text.alignment) = position;
}

namespace {

bool MustPutFace(const MText& text, const TextAppearance& now, const TextAppearance& wanted, uint8_t forAll) {
    const bool isInCodes = text.text != WithoutCodes(text.text, "fF");
    const bool isOther = now.font != wanted.font || (now.style ^ wanted.style) & kStyleBits ||
                         (isInCodes && forAll & (kVariedFont | kVariedStyle));
    if (isInCodes && forAll & kVariedFont && !IsNameForCode(wanted.font))
        throw SaveError("inline codes of the text cannot contain the font '" + wanted.font + "'");
    return isOther && IsNameForCode(wanted.font);
}

std::string FaceCode(const std::string& family, uint16_t style) {
    return "\\f" + family + (style & kTextBold ? "|b1" : "|b0") + (style & kTextItalic ? "|i1" : "|i0") + "|c0|p0;";
}

// Replaces the faces in the text's codes by one, except for families or styles that may vary. `plain` is the face of
// text without a code.
void PutFaceCode(MText& text, const Appearance& wanted, const FontFace& plain) {
    const bool keepsFamilies = wanted.varied & kVariedFont, keepsStyles = wanted.varied & kVariedStyle;
    const FontFace face = {wanted.text.font, static_cast<uint16_t>(wanted.text.style & kStyleBits)};
    const auto replaced = [&](char letter, std::string_view argument) -> std::string {
        if (!keepsFamilies && !keepsStyles) return ""; // the code at the start applies to all
        const size_t end = std::min(argument.find('|'), argument.size());
        const std::string family = keepsFamilies ? std::string(argument.substr(0, end)) : face.family;
        if (!keepsStyles) return FaceCode(family, face.style);
        return std::string("\\") + (keepsFamilies ? letter : 'f') + family + std::string(argument.substr(end)) + ";";
    };
    text.text = WithReplacedCodes(text.text, "fF", replaced);
    const FontFace first = {keepsFamilies ? plain.family : face.family, keepsStyles ? plain.style : face.style};
    if (IsNameForCode(first.family)) text.text.insert(0, FaceCode(first.family, first.style));
}

// Returns the argument of a paragraph code without the alignment: "xi-3" for "xi-3,qc".
std::string WithoutAlignment(std::string_view argument) {
    std::string rest(argument);
    const size_t found = rest.find('q');
    if (found == rest.npos) return rest;
    const size_t end = rest.find(',', found);
    if (end != rest.npos)
        rest.erase(found, end + 1 - found);
    else
        rest.erase(found > 0 && rest[found - 1] == ',' ? found - 1 : found);
    return rest == "x" ? "" : rest;
}

// Codes in the text override the attachment, which also contains the vertical alignment.
void PutAlignment(MText& text, uint16_t format) {
    const int row = (text.attachment - 1) / 3;
    const FormattedText shown = ReadInlineCodes(text.text, text.height);
    text.text = WithReplacedCodes(text.text, "p", [](char, std::string_view argument) {
        const std::string rest = WithoutAlignment(argument);
        return rest.empty() ? rest : "\\p" + rest + ";";
    });
    if (shown.DominantFormat().alignment == 0)
        text.attachment = row * 3 + format + 1;
    else
        text.text = std::string("\\pxq") + "lcr"[format] + ";" + text.text;
}

} // namespace

void AppearanceWriter::WriteParagraphs(MText& text, const Appearance& wanted) {
    const TextAppearance& appearance = wanted.text;
    const auto inGroups = [&] { return AppearanceByGroups(drawing_.Known(), entity_); };
    // Values requested for all of the text, not only for most of it.
    const uint8_t forAll = Now().varied & ~wanted.varied;
    if (forAll & kVariedSize) text.text = WithoutCodes(text.text, "H");
    if (inGroups().text.height != appearance.height) text.height = appearance.height;
    if (inGroups().text.height != appearance.height) text.text = WithoutCodes(text.text, "H");
    if (MustPutFace(text, inGroups().text, appearance, forAll))
        PutFaceCode(text, wanted, FaceOf(drawing_.Known().At(text.style)));
    const auto put = [&](uint16_t bit, const char* codes) {
        if (!((inGroups().text.style ^ appearance.style) & bit || forAll & kVariedStyle)) return;
        text.text = WithoutCodes(text.text, codes);
        if (appearance.style & bit) text.text = std::string("\\") + codes[0] + text.text;
    };
    put(kTextUnderline, "Ll");
    put(kTextStrikethrough, "Kk");
    if (inGroups().color != wanted.color || forAll & kVariedColor) text.text = WithoutCodes(text.text, "Cc");
    if (inGroups().text.format != appearance.format || forAll & kVariedFormat) PutAlignment(text, appearance.format);
    WriteEffects(appearance);
}

// Rotates, mirrors and slants the text, also into another plane.
void AppearanceWriter::Move(const Matrix& motion) {
    if (!As<Text>(entity_)) return;
    Text& text = *As<Text>(entity_);
    const Matrix system = ObjectSystem(entity_.normal);
    const double angle = Radians(text.rotation), up = angle + kPi / 2 - Radians(text.oblique);
    Vec3 along = motion.ApplyToVector(system.ApplyToVector(Direction(angle))),
         rise = motion.ApplyToVector(system.ApplyToVector(Direction(up)));
    const Vec3 insertion = motion.Apply(system.Apply(text.insertion));
    const Vec3 alignment = motion.Apply(system.Apply(text.alignment));
    const Vec3 old = system.ApplyToVector({0, 0, 1}), across = Normalized(Cross(along, rise));
    const double front = Dot(across, old);
    const Vec3 normal = across * (front < 0 ? -1 : 1);
    const bool tilted = Length(normal) > 0 && !Near(std::fabs(front), 1);
    if (tilted) entity_.normal = normal;
    Matrix back;
    if (!ObjectSystem(entity_.normal).Invert(back)) return;
    text.insertion = back.Apply(insertion);
    const bool isInUse = !IsPlacedByInsertion(text) || record_.Find(11);
    if (isInUse) text.alignment = back.Apply(alignment);
    along = back.ApplyToVector(along);
    rise = back.ApplyToVector(rise);
    const double length = Length(along), height = Length(rise);
    if (!(length > 0) || !(height > 0)) return;
    if (Cross(along, rise).z < 0) {
        text.upsideDown = !text.upsideDown;
        rise = rise * -1;
    }
    if (!SameToRounding(height, 1, 1)) text.height *= height;
    if (!SameToRounding(length, height, 1))
        text.widthFactor = (text.widthFactor > 0 ? text.widthFactor : 1) * length / height;
    text.rotation = ChangedAngle(text.rotation, RoundedDegrees(AngleOf(along)));
    text.oblique = ChangedAngle(text.oblique, RoundedDegrees(kPi / 2 - (AngleOf(rise) - AngleOf(along))));
}

void AppearanceWriter::PutReal(int code, double was, double now, std::initializer_list<int> after) {
    if (was != now) record_.Set(code, RealText(now), after);
}

void AppearanceWriter::PutPoint(int code, const Vec3& was, const Vec3& now) {
    const bool missing = !record_.Find(code);
    if (was == now) return;
    // A point is written completely: a missing coordinate is added after the preceding one.
    record_.Set(code, RealText(now.x), {72, 50, 1, 40, 30});
    if (missing || was.y != now.y) record_.Set(code + 10, RealText(now.y), {code, 72, 50, 1, 40, 30});
    if (missing || was.z != now.z) record_.Set(code + 20, RealText(now.z), {code + 10, code, 72, 50, 1, 40, 30});
}

// Damaged text cannot be written back.
void AppearanceWriter::CheckText(std::string_view stored) const {
    const TextDecoder& decoder = drawing_.in_.decoder;
    if (decoder.Encode(decoder.Decode(stored)) != stored)
        throw SaveError("a text of the drawing is not valid in its code page and cannot be changed");
}

void AppearanceWriter::PutText(const Text& now) {
    const Text& was = *std::get<Boxed<Text>>(stored_.shape);
    if (was.text != now.text) {
        const Group* group = record_.Find(1);
        if (group) CheckText(group->value);
        record_.Set(1, drawing_.in_.decoder.Encode(now.text), {40, 30});
    }
    PutPoint(210, stored_.normal, entity_.normal);
    PutPoint(10, was.insertion, now.insertion);
    PutReal(40, was.height, now.height, {30, 20, 10});
    PutReal(50, was.rotation, now.rotation, {1, 40});
    PutReal(41, was.widthFactor, now.widthFactor, {50, 1, 40});
    PutReal(51, was.oblique, now.oblique, {41, 50, 1, 40});
    if (was.style != now.style)
        record_.Set(7, drawing_.in_.textStyles.Stored(drawing_.Known().At(now.style)), {51, 41, 50, 1, 40});
    const auto setBits = [&](int code, int bits, int mask) {
        record_.Set(code, std::to_string((record_.Integer(code) & ~mask) | bits), {7, 51, 41, 50, 1, 40});
    };
    if (was.backward != now.backward || was.upsideDown != now.upsideDown)
        setBits(71, (now.backward ? kBackward : 0) | (now.upsideDown ? kUpsideDown : 0), kBackward | kUpsideDown);
    if (was.horizontal != now.horizontal)
        record_.Set(72, std::to_string(static_cast<int>(now.horizontal)), {71, 7, 51, 41, 50, 1, 40});
    PutPoint(11, was.alignment, now.alignment);
    const bool isText = record_.Groups()[0].value.find("TEXT") != std::string_view::npos;
    if (was.vertical != now.vertical) record_.Set(isText ? 73 : 74, std::to_string(static_cast<int>(now.vertical)));
    if (was.hidden != now.hidden) setBits(70, now.hidden ? kHidden : 0, kHidden);
}

void AppearanceWriter::PutText(const MText& now) {
    const MText& was = *std::get<Boxed<MText>>(stored_.shape);
    PutReal(40, was.height, now.height, {30, 20, 10});
    if (was.attachment != now.attachment) record_.Set(71, std::to_string(now.attachment), {41, 40});
    if (was.text != now.text) PutParagraphs(now.text);
}

// Writes the text in pieces: code 3, and code 1 for the last one.
void AppearanceWriter::PutParagraphs(const std::string& text) {
    std::string stored;
    size_t offset = record_.OffsetAfter({72, 71, 41, 40});
    bool first = true;
    for (const Group& group : record_.Groups()) {
        if (group.attached || (group.code != 1 && group.code != 3)) continue;
        stored += group.value;
        if (first) offset = group.begin;
        first = false;
        record_.Remove(group);
    }
    CheckText(stored);
    const std::vector<std::string> pieces = drawing_.in_.decoder.EncodePieces(text);
    for (size_t i = 0; i + 1 < pieces.size(); ++i)
        record_.Insert(offset, 3, pieces[i]);
    record_.Insert(offset, 1, pieces.empty() ? "" : pieces.back());
}

} // namespace dxf
