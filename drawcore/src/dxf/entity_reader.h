// Reads the entity records of the sections BLOCKS and ENTITIES. Polylines, hatches and the other entities of
// several parts have their own sources: polyline_reader.cpp, hatch_reader.cpp, text_reader.cpp.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "drawcore/src/dxf/record_reader.h"

namespace dxf {

class EntityReader {
public:
    explicit EntityReader(RecordReader& in) : in_(in) {}

    // Reads the record at which the reader is, with the records that belong to it, and goes to the next
    // one. A sound entity is appended to the list; the others leave a finding.
    void Read(std::vector<Entity>& entities);

    // Counts records by type from here on.
    void CountRecords() { counting_ = true; }

    // Says which types of entities were passed over.
    void ReportSkipped();

private:
    using ReadShape = void (EntityReader::*)(Entity&);
    struct Kind {
        std::string_view name;
        ReadShape read;
    };
    static const Kind kKinds[];

    void Count();
    Entity NewEntity();
    // Reads the rest of the record: members of the shape, and those that all entities have.
    template <class T, size_t N>
    void ReadTags(const Field<T> (&table)[N], T& shape, Entity& entity) {
        while (in_.NextTag())
            if (!in_.SetField(table, shape, in_.tags.Current())) SetCommon(entity);
    }
    void SetCommon(Entity& entity);
    // Before records that belong to the entity are read, if there are any.
    void TakeOwn(Entity& entity) {
        if (!entity.own) entity.own = in_.TakeOwn();
    }
    // Refuses the entity for a reason that is not a number without a place.
    void Refuse(std::string reason) { refused_ = std::move(reason); }

    void ReadLine(Entity&);
    void ReadPoint(Entity&);
    void ReadCircle(Entity&);
    void ReadArc(Entity&);
    void ReadEllipse(Entity&);
    void ReadFace(Entity&);
    void ReadSpaceFace(Entity&);
    void ReadInsert(Entity&);
    void ReadTable(Entity&);
    void ReadDimension(Entity&);
    void ReadLeader(Entity&);
    void ReadViewport(Entity&);
    void ReadSpline(Entity&);

    void ReadText(Entity&);
    void ReadAttribute(Entity&);
    void ReadMText(Entity&);
    void ReadAttributesOf(Insert&);

    void ReadLightPolyline(Entity&);
    void ReadPolyline(Entity&);

    void ReadHatch(Entity&);

    RecordReader& in_;
    bool counting_ = false;
    std::string refused_;
    struct Skipped {
        uint64_t count = 0;
        uint32_t firstLine = 0;
    };
    std::map<std::string, Skipped> skipped_;
};

// Makes sure that control points, knots and weights fit together, else falls back on the fit points. False if
// there is nothing to draw.
bool MakeSound(Spline& spline);

} // namespace dxf
