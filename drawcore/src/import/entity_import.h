// Creates graphics from the entities of a DXF document.
#pragma once

#include <memory>

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/import/import_tables.h"

namespace drawcore {

class EntityImport {
public:
    EntityImport(const dxf::Document& document, const ImportedTables& tables, Drawing& drawing)
        : document_(document), tables_(tables), drawing_(drawing) {}

    // Adds the graphics of an entity to the group: usually one, none if it is not visible. In a block, attribute
    // definitions are skipped.
    void AddTo(Graphic& group, const dxf::Entity& entity, bool inBlock);

private:
    friend class ShapeImport;

    std::unique_ptr<Graphic> MakeInsert(const dxf::Entity& entity, const dxf::Insert& insert);
    void AddAttributes(Graphic& group, const dxf::Insert& insert);
    void SetAppearance(Graphic& graphic, const dxf::Appearance& appearance) const;
    void SetExtended(Graphic& graphic, const dxf::ExtendedValue& value) const;
    uint16_t LineStyleOf(dxf::LineTypeIndex type) const;

    const dxf::Document& document_;
    const ImportedTables& tables_;
    Drawing& drawing_;
};

} // namespace drawcore
