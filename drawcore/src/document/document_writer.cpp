// Sets properties, and compares the changed document with the requested values.
#include <algorithm>
#include <cstdlib>
#include <map>

#include "drawcore/src/document/entity_texts.h"
#include "drawcore/src/document/property_texts.h"
#include "drawcore/src/dxf/color_numbers.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/save/appearance_writer.h"
#include "drawcore/src/save/drawing_patch.h"
#include "drawcore/src/units/number_text.h"
#include "drawcore/src/units/unit_settings.h"

namespace dxf {

struct DocumentWriter::Parts {
    explicit Parts(const DocumentReader& from)
        : reader(from), patch(reader.Text(), reader.document_->Tables()), known(*reader.document_) {}

    // Throws SaveError unless the changed document has the requested values.
    void RequireRequestedValues(const DocumentReader& after) const;
    void RequireEntities(const Block* block, const std::vector<Entity>& before, const std::vector<Entity>& now,
                         const DocumentReader& after) const;
    void RequireEntity(const EntityRef& before, const EntityRef& now, const DocumentReader& after) const;
    void RequireEdit(const EntityRef& entity, const EntityEdit& edit, const EntityRef& now,
                     const DocumentReader& after) const;
    void RequireAppearance(const EntityRef& entity, const Appearance& appearance, const EntityRef& now,
                           const DocumentReader& after) const;
    [[noreturn]] static void FailVerification(const std::string& what);

    const DocumentReader& reader;
    // Properties of the sheet in the order in which they are set, and the others.
    struct Ordered {
        Values properties, others;
    };
    Ordered InOrder(const Values& values) const;
    // Returns the changes that the values make to the entity's text and placement.
    EntityEdit EditOf(const EntityRef& entity, const Ordered& values) const;
    bool Change(const EntityRef& ref, const Ordered& values);
    // Returns the appearance of the entity with other contents of its text.
    Appearance AppearanceWith(const std::string& contents, const Entity& entity);
    std::string LineTypeNamed(const std::string& name) const;
    void Rename(LayerIndex index, const std::string& name);

    struct Wanted {
        Appearance appearance;
        EntityEdit edit;
    };
    Ordered ordered;
    DrawingPatch patch;
    const Document& known;
    std::map<uint32_t, Wanted> wanted; // by the offsets of entities
};

// Returns the values in the order in which they are set. Throws SaveError if one is not valid for any entity.
DocumentWriter::Parts::Ordered DocumentWriter::Parts::InOrder(const Values& from) const {
    Ordered result;
    for (const std::string& name : PropertyTexts::Names())
        for (const auto& [property, text] : from)
            if (IsSameName(property, name)) result.properties.emplace_back(name, text);
    for (const auto& [property, text] : from)
        if (const auto name = EntityTexts::NameOf(property)) result.others.emplace_back(*name, text);
    Appearance tried;
    for (const auto& [property, text] : result.properties)
        reader.texts_->Set(property, text, tried);
    EntityEdit edit;
    for (const auto& [property, text] : result.others)
        EntityTexts::Set(property, text, edit);
    return result;
}

DocumentWriter::DocumentWriter(const DocumentReader& reader, const Values& values)
    : parts_(std::make_unique<Parts>(reader)) {
    parts_->ordered = parts_->InOrder(values);
}

DocumentWriter::~DocumentWriter() = default;

bool DocumentWriter::Change(const EntityRef& entity) {
    return parts_->Change(entity, parts_->ordered);
}

bool DocumentWriter::Change(const EntityRef& entity, const Values& values) {
    return parts_->Change(entity, parts_->InOrder(values));
}

EntityEdit DocumentWriter::Parts::EditOf(const EntityRef& ref, const Ordered& values) const {
    EntityEdit edit;
    for (const auto& [name, text] : values.others) {
        if (!EntityTexts::Has(*ref.entity_, name)) continue;
        const std::string value = reader.entityTexts_->Normalized(name, text);
        if (reader.Get(ref, name) != value) EntityTexts::Set(name, value, edit);
    }
    return edit;
}

bool DocumentWriter::Parts::Change(const EntityRef& ref, const Ordered& values) {
    const Entity& entity = *ref.entity_;
    EntityEdit edit = EditOf(ref, values);
    const auto moved = wanted.find(entity.offset); // an attribute that moves with its insertion
    // Inline codes of a new text are part of the appearance that the other values change.
    Appearance was = edit.text ? AppearanceWith(*edit.text, entity) : AppearanceOf(known, entity);
    if (moved != wanted.end()) was.text.height = moved->second.appearance.text.height;
    Appearance appearance = was;
    for (const auto& [property, text] : values.properties)
        if (PropertyTexts::Has(entity, property)) reader.texts_->Set(property, text, appearance);
    const std::optional<AxisEnds> ends = edit.EndsOf(entity);
    const bool isMoved = edit.Moves(entity);
    if (appearance == was && !edit.text && !ends && !isMoved) return false;
    EntityChange entityChange;
    Insert numbers;
    const Insert* insert = As<Insert>(entity);
    if (ends) {
        numbers = edit.NumbersOf(*insert);
        entityChange.ends = &*ends;
        entityChange.numbers = &numbers;
    }
    if (isMoved) entityChange.position = &*edit.position;
    if (edit.text) entityChange.text = &*edit.text;
    try {
        patch.Change(entity.offset, appearance, entityChange);
    } catch (const SaveError& error) {
        throw SaveError(reader.NameOf(ref).Text() + ": " + error.what());
    }
    wanted.insert_or_assign(entity.offset, Wanted{std::move(appearance), std::move(edit)});
    if (ends)
        for (const Entity& attribute : insert->attributes)
            wanted.emplace(attribute.offset, Wanted{patch.AppearanceAt(attribute.offset), {}});
    return true;
}

Appearance DocumentWriter::Parts::AppearanceWith(const std::string& contents, const Entity& entity) {
    Entity changed = patch.EntityAt(entity.offset);
    if (auto* text = As<Text>(changed)) text->text = contents;
    if (auto* text = As<MText>(changed)) text->text = contents;
    return AppearanceOf(known, changed);
}

namespace {

void RequireLayerName(const std::string& name) {
    if (name.empty() || name.find_first_of("<>/\\\":;?*|=`") != std::string::npos || HasControlCharacter(name) ||
        name.front() == ' ' || name.back() == ' ')
        throw SaveError("'" + name + "' is not a valid layer name");
}

int WithFlag(int flags, int flag, std::optional<bool> wanted) {
    return wanted.value_or((flags & flag) != 0) ? flags | flag : flags & ~flag;
}

bool HasValuesOf(const Layer& a, const Layer& b) {
    return a.color == b.color && a.trueColor == b.trueColor && a.flags == b.flags && a.plotted == b.plotted &&
           a.lineWeight == b.lineWeight && IsSameName(ToDisplayText(a.lineType), ToDisplayText(b.lineType));
}

void SetColor(const std::string& text, Layer& layer) {
    const uint32_t color = ReadColor(text, false);
    if (color == kColorByLayer || color == kColorByBlock) throw SaveError("a layer cannot inherit its color");
    const int index = NearestIndex(color);
    layer.color = layer.color < 0 ? -index : index;
    layer.trueColor = ColorOfIndex(index) == color ? -1 : TrueColorOf(color);
}

int ReadLineWeight(const std::string& text) {
    if (IsSameName(text, "Default")) return kLineWeightDefault;
    double millimeters = 0;
    if (!drawcore::ReadLength(text, *drawcore::FindLengthUnit("mm"), millimeters) || millimeters < 0)
        throw SaveError("'" + text + "' is not a line weight, such as \"0.5 mm\" or Default");
    const int nearest = NearestWeight(millimeters / kMillimetersPerInch);
    if (std::fabs(nearest / 100.0 - millimeters) > 1e-6)
        throw SaveError("no layer can have the line weight '" + text + "'; the nearest is " +
                        drawcore::DecimalText(nearest / 100.0, 2) + " mm");
    return nearest;
}

} // namespace

bool DocumentWriter::ChangeLayer(const std::string& name, const LayerValues& wanted) {
    DrawingPatch& patch = parts_->patch;
    const LayerIndex index = patch.FindLayer(name);
    const Layer was = patch.Describe(index);
    if (static_cast<size_t>(index) >= parts_->known.layers.size()) RequireLayerName(name); // a new one
    Layer layer = was;
    if (wanted.color) SetColor(*wanted.color, layer);
    if (wanted.isOn) layer.color = *wanted.isOn ? std::abs(layer.color) : -std::abs(layer.color);
    layer.flags = WithFlag(layer.flags, kLayerIsFrozen, wanted.isFrozen);
    layer.flags = WithFlag(layer.flags, kLayerIsLocked, wanted.isLocked);
    layer.plotted = wanted.isPlotted.value_or(layer.plotted);
    if (wanted.lineType) layer.lineType = parts_->LineTypeNamed(*wanted.lineType);
    if (wanted.lineWeight) layer.lineWeight = ReadLineWeight(*wanted.lineWeight);
    const bool isOther = !was.declared || !HasValuesOf(layer, was);
    if (isOther) patch.ChangeLayer(index, layer);
    const bool isRenamed = wanted.name && *wanted.name != ToDisplayText(was.name);
    if (isRenamed) parts_->Rename(index, *wanted.name);
    return isOther || isRenamed;
}

std::string DocumentWriter::Parts::LineTypeNamed(const std::string& name) const {
    constexpr char kContinuous[] = "Continuous";
    std::string names = kContinuous;
    for (const LineType& type : known.lineTypes) {
        const std::string shown = ToDisplayText(type.name);
        if (type.declared && IsSameName(shown, name)) return type.name;
        if (type.declared && !IsSameName(shown, kContinuous)) names += ", " + shown;
    }
    if (IsSameName(name, kContinuous)) return kContinuous;
    throw SaveError("'" + name + "' is not one of the line types " + names);
}

void DocumentWriter::Parts::Rename(LayerIndex index, const std::string& name) {
    RequireLayerName(name);
    if (patch.Describe(index).name == "0") throw SaveError("layer 0 cannot be renamed");
    for (const Layer& layer : known.layers)
        if (layer.declared && IsSameName(ToDisplayText(layer.name), name) &&
            !IsSameName(ToDisplayText(patch.Describe(index).name), name))
            throw SaveError("layer '" + name + "' already exists");
    patch.RenameLayer(index, name);
}

std::vector<std::string> DocumentWriter::Notes() const {
    std::vector<std::string> notes;
    for (const auto& [property, count] : parts_->patch.OnlyExtended())
        notes.push_back(OnlyExtendedText(property, count));
    return notes;
}

void DocumentWriter::Parts::RequireRequestedValues(const DocumentReader& after) const {
    const std::vector<Block>&blocks = known.blocks, &changed = after.document_->blocks;
    if (blocks.size() != changed.size()) FailVerification("the number of blocks");
    RequireEntities(nullptr, known.entities, after.document_->entities, after);
    for (size_t i = 0; i < blocks.size(); ++i)
        RequireEntities(&blocks[i], blocks[i].entities, changed[i].entities, after);
    for (const Layer& layer : patch.Known().layers) {
        if (!layer.declared) continue;
        const auto isIt = [&](const Layer& other) {
            return IsSameName(ToDisplayText(other.name), ToDisplayText(layer.name)) && HasValuesOf(other, layer);
        };
        const std::vector<Layer>& layers = after.document_->layers;
        if (std::none_of(layers.begin(), layers.end(), isIt)) FailVerification("layer " + ToDisplayText(layer.name));
    }
}

void DocumentWriter::Parts::FailVerification(const std::string& what) {
    throw SaveError("verification of the changed drawing failed: " + what + " differs");
}

void DocumentWriter::Parts::RequireEntities(const Block* block, const std::vector<Entity>& before,
                                            const std::vector<Entity>& now, const DocumentReader& after) const {
    if (before.size() != now.size()) FailVerification("the number of entities");
    for (size_t i = 0; i < before.size(); ++i) {
        const Entity &entity = before[i], &changed = now[i];
        if (entity.shape.index() != changed.shape.index() || entity.inPaperSpace != changed.inPaperSpace)
            FailVerification(reader.NameOf({entity, block}).Text());
        if (PropertyTexts::HasAny(entity)) RequireEntity({entity, block}, {changed, block}, after);
        if (const Insert* insert = As<Insert>(entity))
            RequireEntities(block, insert->attributes, As<Insert>(changed)->attributes, after);
    }
}

void DocumentWriter::Parts::RequireEntity(const EntityRef& before, const EntityRef& now,
                                          const DocumentReader& after) const {
    const auto change = wanted.find(before.entity_->offset);
    if (change == wanted.end()) return RequireAppearance(before, AppearanceOf(known, *before.entity_), now, after);
    RequireEdit(before, change->second.edit, now, after);
    RequireAppearance(before, change->second.appearance, now, after);
}

void DocumentWriter::Parts::RequireEdit(const EntityRef& entity, const EntityEdit& edit, const EntityRef& now,
                                        const DocumentReader& after) const {
    const auto require = [&](bool isValid, const char* name) {
        if (!isValid) FailVerification(name + (" of " + reader.NameOf(entity).Text()));
    };
    if (edit.text) require(after.Get(now, "Text") == *edit.text, "Text");
    const auto requirePoint = [&](const Vec3& point, const Vec3& placed) {
        require(Length(point - placed) <= RoundingAt(point) * 16, "Position");
    };
    if (edit.Moves(*entity.entity_)) requirePoint(*edit.position, PositionOf(*now.entity_).value_or(Vec3()));
    const std::optional<AxisEnds> ends = edit.EndsOf(*entity.entity_);
    if (!ends) return;
    const AxisEnds placed = AxisEndsOf(*now.entity_);
    for (size_t i = 0; i < ends->size(); ++i)
        requirePoint((*ends)[i], placed[i]);
}

void DocumentWriter::Parts::RequireAppearance(const EntityRef& entity, const Appearance& appearance,
                                              const EntityRef& now, const DocumentReader& after) const {
    const Document &tables = patch.Known(), &read = *after.document_;
    const Appearance other = AppearanceOf(read, *now.entity_);
    if (SameAppearance(tables, appearance, read, other)) return;
    const PropertyTexts texts(tables);
    for (const std::string& name : PropertyTexts::Names())
        if (texts.Get(name, appearance) != after.texts_->Get(name, other))
            FailVerification(name + " of " + reader.NameOf(entity).Text());
    FailVerification("the appearance of " + reader.NameOf(entity).Text());
}

std::string DocumentWriter::Finish() {
    const std::string& bytes = parts_->reader.Bytes();
    std::string changed = parts_->patch.Finish();
    changed.insert(0, bytes, 0, bytes.size() - parts_->reader.Text().size()); // the byte order mark
    DocumentReader after(std::move(changed));
    parts_->RequireRequestedValues(after);
    return std::move(after.bytes_);
}

} // namespace dxf
