// Changes the entities of a drawing, and adds table records that they need.
#include "drawcore/src/save/drawing_patch.h"

#include <algorithm>
#include <utility>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/save/appearance_writer.h"

namespace dxf {

DrawingPatch::DrawingPatch(std::string_view text, Document known)
    : in_(text, std::move(known)), patch_(text), tables_(patch_, in_.decoder, in_.document.header.version) {}

Entity DrawingPatch::EntityAt(size_t offset) {
    in_.tags.Seek(offset);
    std::vector<Entity> read;
    entities_.Read(read);
    if (read.size() != 1) throw SaveError("an entity of the drawing cannot be read again");
    return std::move(read[0]);
}

Appearance DrawingPatch::AppearanceAt(size_t offset) {
    AppearanceWriter writer(*this, offset);
    const auto moved = moved_.find(offset);
    if (moved != moved_.end()) writer.Move(moved->second);
    return writer.Now();
}

void DrawingPatch::Change(size_t offset, const Appearance& wanted, const EntityChange& change) {
    const auto moved = moved_.find(offset);
    AppearanceWriter writer(*this, offset);
    if (moved != moved_.end()) {
        writer.Move(moved->second);
        moved_.erase(moved);
    }
    if (change.ends) writer.Place(*change.ends, change.numbers);
    if (change.position) writer.MoveTo(*change.position);
    if (change.vertices) writer.MoveVertices(*change.vertices);
    if (change.text) writer.PutContents(*change.text);
    writer.Write(wanted);
}

namespace {

// Throws SaveError if files of this version have no group for a value that changes.
void RequireStorable(const Layer& wanted, const Layer& was, std::string_view version) {
    if (wanted.trueColor >= 0 && was.trueColor < 0 && version < "AC1018")
        throw SaveError("a file of this version cannot store the color");
    if ((wanted.lineWeight != was.lineWeight || wanted.plotted != was.plotted) && version < "AC1015")
        throw SaveError("a file of this version cannot store the line weight or plotting of a layer");
}

} // namespace

void DrawingPatch::ChangeLayer(LayerIndex index, const Layer& wanted) {
    Layer& layer = Describe(index);
    RequireStorable(wanted, layer, Known().header.version);
    const bool otherLine = wanted.lineType != layer.lineType;
    const LineTypeIndex line = otherLine ? FindLineType(wanted.lineType) : LineTypeIndex::none;
    if (otherLine) EnsureRecord(line);
    const Layer was = std::exchange(layer, wanted);
    if (!was.declared) return EnsureRecord(index);
    RecordPatch record(patch_, in_.tags, was.offset);
    if (wanted.color != was.color) record.Set(62, std::to_string(wanted.color), {70, 2});
    if (wanted.flags != was.flags) record.Set(70, std::to_string(wanted.flags), {2});
    if (otherLine) record.Set(6, in_.lineTypes.Stored(Known().At(line)), {62, 70, 2});
    if (wanted.plotted != was.plotted) record.Set(290, wanted.plotted ? "1" : "0", {6, 62, 70, 2});
    if (wanted.lineWeight != was.lineWeight) record.Set(370, std::to_string(wanted.lineWeight), {290, 6, 62, 70, 2});
    if (wanted.trueColor == was.trueColor) return;
    wanted.trueColor < 0 ? record.Remove(420) : record.Set(420, std::to_string(wanted.trueColor), {62});
}

// Names of layers are in group 8 of any record, and in group 1003 of extended data.
void DrawingPatch::RenameLayer(LayerIndex index, const std::string& name) {
    constexpr int kLayerInExtended = 1003;
    Layer& layer = Describe(index);
    const std::string now = in_.decoder.Encode(name);
    const auto isSame = [&](std::string_view stored) {
        return IsSameName(ToDisplayText(in_.decoder.Decode(stored)), ToDisplayText(layer.name));
    };
    TagReader tags(patch_.Text());
    bool isInRecord = false;
    for (const Tag* tag = &tags.Next(); !tag->Is(0, "EOF"); tag = &tags.Next()) {
        if (tag->StartsRecord()) isInRecord = tag->offset == layer.offset && layer.declared;
        const bool names = tag->code == kLayerName || tag->code == kLayerInExtended || (isInRecord && tag->code == 2);
        if (names && isSame(tag->Trimmed())) patch_.Replace(tag->Trimmed(), now);
    }
    layer.name = name;
    layer.stored.clear();
}

std::string DrawingPatch::Finish() {
    while (!moved_.empty()) {
        const auto [offset, motion] = *moved_.begin();
        moved_.erase(moved_.begin());
        AppearanceWriter writer(*this, offset);
        writer.Move(motion);
        writer.Write(writer.Now());
    }
    tables_.Finish();
    return patch_.Result();
}

void DrawingPatch::EnsureRecord(LayerIndex index) {
    Layer& layer = Describe(index);
    if (layer.declared) return;
    layer.declared = true;
    if (layer.lineType.empty()) layer.lineType = "Continuous";
    tables_.AddLayer(layer, in_.layers.Stored(layer));
}

void DrawingPatch::EnsureRecord(LineTypeIndex index) {
    LineType& type = Describe(index);
    if (type.declared) return;
    type.declared = true;
    tables_.AddLineType(type, in_.lineTypes.Stored(type));
}

std::string OnlyExtendedText(const std::string& property, size_t entities) {
    return property + " of " + std::to_string(entities) + (entities == 1 ? " entity" : " entities") +
           " is stored as extended data, which other programs do not show";
}

std::string DrawingPatch::TextStyleFor(const FontFace& face) {
    std::vector<TextStyle>& styles = in_.document.textStyles;
    const auto fits = [&](const TextStyle& style) {
        const FontFace has = FaceOf(style);
        return style.declared && has.family == face.family && has.style == face.style;
    };
    const auto known = std::find_if(styles.begin(), styles.end(), fits);
    if (known != styles.end()) return known->name;
    if (face.family.empty()) return {};
    const std::string plain =
        face.family + (face.style & kTextBold ? " Bold" : "") + (face.style & kTextItalic ? " Italic" : "");
    size_t index = 0;
    for (int number = 1; index == 0 || styles[index].declared; ++number) // a style with that name may have another face
        index = in_.textStyles.FindUtf8(number == 1 ? plain : plain + " " + std::to_string(number));
    TextStyle& style = styles[index];
    style.declared = true;
    style.fontFace = face.family;
    style.fontFile = FontFileOf(face);
    style.bold = (face.style & kTextBold) != 0;
    style.italic = (face.style & kTextItalic) != 0;
    tables_.AddTextStyle(style);
    return style.name;
}

} // namespace dxf
