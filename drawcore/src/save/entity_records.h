// Creates records of new entities in the format of the drawing's version: with subclass markers, handles and owners if
// it has them. They contain only the shape, on layer 0; appearance and placement are changes of these records
// (drawing_patch.h).
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/save/table_patch.h"

namespace dxf {

class EntityRecords {
public:
    // Names of entities refer to the document. Both arguments must outlive this object.
    EntityRecords(TablePatch& tables, const Document& known) : tables_(tables), known_(known) {}

    // owner: handle of the block record that contains the entity, or empty. Throws SaveError if the version has no such
    // entity.
    std::string LinesOf(const Entity& entity, const std::string& owner);
    // Return the records before and after the entities of a block.
    std::string BlockLines(const Block& block, const std::string& owner);
    std::string BlockEndLines(const std::string& owner);

private:
    using Values = TablePatch::Values;
    struct Head {
        const char *name, *marker; // the marker of its last part, or null
    };

    // Begins a record and returns its handle.
    std::string Begin(Values& to, const Head& head, const std::string& owner);
    void Mark(Values& to, const char* marker) const;
    void RequireVersion(const char* version, const char* kind) const;

    struct Shapes;
    void AppendVertices(Values& to, const Polyline& polyline, const std::string& owner);

    TablePatch& tables_;
    const Document& known_;
};

} // namespace dxf
