// Changes of a drawing's text, entity by entity: only the groups that carry a change are replaced, added or removed.
// What the file format has no group for goes into extended data under kApplication. Knows no database.
//
//   dxf::DrawingPatch patch(text, std::move(document));
//   dxf::Look look = patch.LookAt(entity.offset);
//   look.color = 0x0000FF;
//   patch.SetLook(entity.offset, look);
//   const std::string changed = patch.Finish();
#pragma once

#include <map>
#include <string>

#include "drawcore/src/dxf/entity_reader.h"
#include "drawcore/src/dxf/look.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/save/table_patch.h"

namespace dxf {

// Where an entity is wanted; null: where it is.
struct EntityPlace {
    // Of an insertion. Its attributes move with it, even those without a change of their own.
    const AxisEnds* ends = nullptr;
    // Of lines and polylines, in the world, as many as it has.
    const std::vector<Vec3>* vertices = nullptr;
};

class DrawingPatch {
public:
    // The text that the document was read from (without a mark of UTF-8); of the document the header and the tables
    // count. The text has to outlive the patch.
    DrawingPatch(std::string_view text, Document known);

    const Document& Known() const { return in_.document; }

    // Things by name (UTF-8, any case). One that no table of the file has gets a record there when an entity first
    // needs it: as it is described until then.
    LayerIndex FindLayer(const std::string& name) { return LayerIndex(in_.layers.FindUtf8(name)); }
    LineTypeIndex FindLineType(const std::string& name) { return LineTypeIndex(in_.lineTypes.FindUtf8(name)); }
    Layer& Describe(LayerIndex index) { return in_.document.layers[static_cast<size_t>(index)]; }
    LineType& Describe(LineTypeIndex index) { return in_.document.lineTypes[static_cast<size_t>(index)]; }

    // The entity whose record begins there. ReadError, SaveError if there isn't one that can be read.
    Entity EntityAt(size_t offset);
    Look LookAt(size_t offset) { return LookOf(Known(), EntityAt(offset)); }

    // At most one call for each entity.
    void Change(size_t offset, const Look& wanted, const EntityPlace& place = {});

    // Color, flags and line type (by name) of a layer; at most once for each, before changes of entities.
    void ChangeLayer(LayerIndex index, const Layer& wanted);

    // Adds a record for the layer if no table has one.
    void NeedRecord(LayerIndex index);

    // For how many entities a property was written that only extended data holds, by its name.
    const std::map<std::string, size_t>& OnlyExtended() const { return onlyExtended_; }

    bool IsChanged() const { return !patch_.IsEmpty(); }
    // The changed text; nothing can be changed afterwards.
    std::string Finish();
    // Where what began there is in it.
    size_t Moved(size_t offset) const { return patch_.Moved(offset); }

private:
    friend class LookWriter;

    void NeedRecord(LineTypeIndex index);
    // The name of a text style with that face.
    std::string TextStyleFor(const FontFace& face);

    RecordReader in_;
    EntityReader entities_{in_};
    TextPatch patch_;
    TablePatch tables_;
    std::map<std::string, size_t> onlyExtended_;
    std::map<size_t, Matrix> moved_; // attributes, by their insertions; until they are changed themselves
};

// Returns what a user is told about a property that other programs do not show.
std::string OnlyExtendedText(const std::string& property, size_t entities);

} // namespace dxf
