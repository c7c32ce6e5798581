// New records of entities in the form of a drawing's version: with markers, handles and owners where it has them. They
// hold the shape alone, on layer 0: looks and the places of insertions are changes of these records (drawing_patch.h).
#pragma once

#include "drawcore/src/dxf/document.h"
#include "drawcore/src/save/table_patch.h"

namespace dxf {

class EntityRecords {
public:
    // Names that entities have are those of the document; both have to outlive the records.
    EntityRecords(TablePatch& tables, const Document& known) : tables_(tables), known_(known) {}

    // owner: the handle of the block record that the entity is in; empty: none. SaveError if the version has no such
    // entity.
    std::string LinesOf(const Entity& entity, const std::string& owner);
    // What stands before and behind the entities of a block.
    std::string BlockLines(const Block& block, const std::string& owner);
    std::string BlockEndLines(const std::string& owner);

private:
    using Values = TablePatch::Values;
    struct Head {
        const char *name, *marker;
    };

    // Begins a record; the handle that it gets.
    std::string Begin(Values& to, const Head& head, const std::string& owner);
    void Mark(Values& to, const char* marker) const;
    void NeedVersion(const char* version, const char* kind) const;

    struct Shapes;
    void AppendVertices(Values& to, const Polyline& polyline, const std::string& owner);

    TablePatch& tables_;
    const Document& known_;
};

} // namespace dxf
