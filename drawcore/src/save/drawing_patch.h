// Changes a drawing's text entity by entity: only the groups of changed values are replaced, added or removed. Values
// without a group are stored in extended data under kApplication. Does not depend on the database.
//
//   dxf::DrawingPatch patch(text, std::move(document));
//   dxf::Appearance appearance = patch.AppearanceAt(entity.offset);
//   appearance.color = 0x0000FF;
//   patch.SetAppearance(entity.offset, appearance);
//   const std::string changed = patch.Finish();
#pragma once

#include <map>
#include <string>

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/dxf/entity_reader.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/save/table_patch.h"

namespace dxf {

// The requested position of an entity, and the requested contents of a text. Null members change nothing.
struct EntityChange {
    // For an insertion. Its attributes move with it, even those without other changes.
    const AxisEnds* ends = nullptr;
    // Used with `ends`: the requested scales and rotation, since other numbers can describe the same axes: two mirrored
    // axes equal a half turn.
    const Insert* numbers = nullptr;
    // In world coordinates, for an entity with a position (placement.h) that is not an insertion.
    const Vec3* position = nullptr;
    // For lines and polylines: all of its vertices, in world coordinates.
    const std::vector<Vec3>* vertices = nullptr;
    // As Text and MText store it, with control and inline codes.
    const std::string* text = nullptr;
};

class DrawingPatch {
public:
    // The text (without a UTF-8 byte order mark) that the document was read from, of which header and tables are used.
    // The text must outlive the patch.
    DrawingPatch(std::string_view text, Document known);

    const Document& Known() const { return in_.document; }

    // Find objects by name (UTF-8, ignoring case). If no table of the file declares the object, a record is added when
    // an entity first needs it, with the values that Describe has at that time.
    LayerIndex FindLayer(const std::string& name) { return LayerIndex(in_.layers.FindUtf8(name)); }
    LineTypeIndex FindLineType(const std::string& name) { return LineTypeIndex(in_.lineTypes.FindUtf8(name)); }
    Layer& Describe(LayerIndex index) { return in_.document.layers[static_cast<size_t>(index)]; }
    LineType& Describe(LineTypeIndex index) { return in_.document.lineTypes[static_cast<size_t>(index)]; }

    // Returns the entity whose record is at the offset. Throws ReadError or SaveError if there is no readable entity.
    Entity EntityAt(size_t offset);
    // Returns the appearance of that entity; of an attribute, after it has moved with its insertion.
    Appearance AppearanceAt(size_t offset);

    // May be called once per entity.
    void Change(size_t offset, const Appearance& wanted, const EntityChange& change = {});

    // Changes color, flags, line type (by name), weight and plotting of a layer. May be called once per layer, before
    // entities are changed.
    void ChangeLayer(LayerIndex index, const Layer& wanted);

    // Renames the layer (UTF-8) in its record and in all records that refer to it. Cannot be combined with changes of
    // entities, because both would replace the same groups.
    void RenameLayer(LayerIndex index, const std::string& name);

    // Adds a record for the layer if no table has one.
    void EnsureRecord(LayerIndex index);

    // Returns the number of entities for which a property was written to extended data only, by property name.
    const std::map<std::string, size_t>& OnlyExtended() const { return onlyExtended_; }

    bool IsChanged() const { return !patch_.IsEmpty(); }
    // Returns the changed text. Nothing can be changed afterward.
    std::string Finish();
    // Converts an offset in the original text to the offset in the changed text.
    size_t Moved(size_t offset) const { return patch_.Moved(offset); }

private:
    friend class AppearanceWriter;

    void EnsureRecord(LineTypeIndex index);
    // Returns the name of a text style with that face.
    std::string TextStyleFor(const FontFace& face);

    RecordReader in_;
    EntityReader entities_{in_};
    TextPatch patch_;
    TablePatch tables_;
    std::map<std::string, size_t> onlyExtended_;
    std::map<size_t, Matrix> moved_; // of attributes, by insertion, until they are changed themselves
};

// Returns the note for the user about a property that other programs do not show.
std::string OnlyExtendedText(const std::string& property, size_t entities);

} // namespace dxf
