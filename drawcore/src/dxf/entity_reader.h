// Reads the entity records of the sections BLOCKS and ENTITIES. Entities with several parts have their own sources:
// polyline_reader.cpp, hatch_reader.cpp, text_reader.cpp.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "drawcore/src/dxf/record_reader.h"

namespace dxf {

class EntityReader {
public:
    explicit EntityReader(RecordReader& in) : in_(in) {}

    // Reads the current record with the records that belong to it, and advances to the next. Appends a valid entity to
    // the list; reports a warning for others.
    void Read(std::vector<Entity>& entities);

    // Starts counting records by type.
    void CountRecords() { counting_ = true; }

    // Reports the types of entities that were skipped.
    void ReportSkipped();

private:
    using ReadShape = void (EntityReader::*)(Entity&);
    struct Kind {
        std::string_view name;
        ReadShape read;
    };
    static const Kind kKinds[];

    void Count();
    void SkipSequenceEnd();
    Entity NewEntity();
    // Reads the rest of the record: members of the shape, and those of all entities.
    template <class T, size_t N>
    void ReadTags(const Field<T> (&table)[N], T& shape, Entity& entity) {
        while (in_.NextTag())
            if (!in_.SetField(table, shape, in_.tags.Current())) SetCommon(entity);
    }
    void SetCommon(Entity& entity);
    // Stores the extended data, before further records of the entity are read.
    void TakeExtended(Entity& entity) {
        if (!entity.extended) entity.extended = in_.TakeExtended();
    }
    // Rejects the entity for a reason other than an invalid coordinate.
    void Reject(std::string reason) { rejection_ = std::move(reason); }

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
    void ReadMText(Entity&);
    void ReadAttributesOf(Insert&);

    void ReadLightPolyline(Entity&);
    void ReadPolyline(Entity&);

    void ReadHatch(Entity&);

    RecordReader& in_;
    bool counting_ = false;
    std::string rejection_;
    struct Skipped {
        uint64_t count = 0;
        uint32_t firstLine = 0;
    };
    std::map<std::string, Skipped> skipped_;
};

// Checks that control points, knots and weights are consistent, and otherwise uses the fit points. Returns false if
// nothing can be drawn.
bool MakeValid(Spline& spline);

} // namespace dxf
