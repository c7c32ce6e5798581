// Reads single records, and the groups shared by all entities.

#include "drawcore/src/dxf/entity_reader.h"

#include <algorithm>

namespace dxf {

namespace {

const Field<Entity> kCommon[] = {
    {8, &Entity::layer},         {62, &Entity::color},      {6, &Entity::lineType},
    {370, &Entity::lineWeight},  {420, &Entity::trueColor}, {210, &Entity::normal},
    {67, &Entity::inPaperSpace}, {60, &Entity::invisible},  {48, &Entity::lineTypeScale},
};

} // namespace

// Sorted by frequency.
const EntityReader::Kind EntityReader::kKinds[] = {
    {"LINE", &EntityReader::ReadLine},
    {"LWPOLYLINE", &EntityReader::ReadLightPolyline},
    {"POLYLINE", &EntityReader::ReadPolyline},
    {"INSERT", &EntityReader::ReadInsert},
    {"ARC", &EntityReader::ReadArc},
    {"CIRCLE", &EntityReader::ReadCircle},
    {"TEXT", &EntityReader::ReadText},
    {"MTEXT", &EntityReader::ReadMText},
    {"POINT", &EntityReader::ReadPoint},
    {"HATCH", &EntityReader::ReadHatch},
    {"SOLID", &EntityReader::ReadFace},
    {"DIMENSION", &EntityReader::ReadDimension},
    {"ELLIPSE", &EntityReader::ReadEllipse},
    {"SPLINE", &EntityReader::ReadSpline},
    {"3DFACE", &EntityReader::ReadSpaceFace},
    {"ATTDEF", &EntityReader::ReadText},
    {"ATTRIB", &EntityReader::ReadText},
    {"LEADER", &EntityReader::ReadLeader},
    {"TRACE", &EntityReader::ReadFace},
    {"VIEWPORT", &EntityReader::ReadViewport},
    {"ACAD_TABLE", &EntityReader::ReadTable},
    {"ARC_DIMENSION", &EntityReader::ReadDimension},
    {"LARGE_RADIAL_DIMENSION", &EntityReader::ReadDimension},
    {"3DLINE", &EntityReader::ReadLine},
};

void EntityReader::Count() {
    if (!counting_) return;
    auto& counts = in_.document.entityCounts;
    const std::string_view name = in_.tags.Current().Trimmed();
    const auto known = counts.find(name);
    if (known != counts.end())
        ++known->second;
    else
        ++counts[in_.decoder.Decode(name)];
}

void EntityReader::SkipSequenceEnd() {
    if (!in_.tags.Current().Is(0, "SEQEND")) return;
    Count();
    in_.tags.SkipRecord();
}

void EntityReader::SetCommon(Entity& entity) {
    in_.SetField(kCommon, entity, in_.tags.Current());
}

Entity EntityReader::NewEntity() {
    Entity entity;
    entity.layer = LayerIndex(in_.layers.Find("0"));
    entity.line = in_.tags.Current().line;
    entity.offset = static_cast<uint32_t>(in_.tags.Current().offset);
    in_.TakeExtended();
    return entity;
}

void EntityReader::Read(std::vector<Entity>& entities) {
    Count();
    const std::string_view name = in_.tags.Current().Trimmed();
    const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const Kind& k) { return k.name == name; });
    if (kind == std::end(kKinds)) {
        Skipped& skipped = skipped_[in_.decoder.Decode(name)];
        if (skipped.count++ == 0) skipped.firstLine = in_.tags.Current().line;
        in_.tags.SkipRecord();
        return;
    }
    Entity entity = NewEntity();
    (this->*kind->read)(entity);
    TakeExtended(entity);
    if (const uint32_t line = in_.TakeInvalidCoordinate()) Reject("invalid coordinate in line " + std::to_string(line));
    if (rejection_.empty())
        entities.push_back(std::move(entity));
    else
        in_.Report(entity.line, std::string(name) + " omitted: " + rejection_);
    rejection_.clear();
}

void EntityReader::ReportSkipped() {
    for (const auto& [name, skipped] : skipped_)
        in_.Report(skipped.firstLine,
                   std::to_string(skipped.count) + " of type " + name + " not shown: unsupported type");
}

void EntityReader::ReadLine(Entity& entity) {
    static const Field<Line> kFields[] = {{10, &Line::start}, {11, &Line::end}};
    ReadTags(kFields, entity.shape.emplace<Line>(), entity);
}

void EntityReader::ReadPoint(Entity& entity) {
    static const Field<PointMark> kFields[] = {{10, &PointMark::at}};
    ReadTags(kFields, entity.shape.emplace<PointMark>(), entity);
}

void EntityReader::ReadCircle(Entity& entity) {
    static const Field<Circle> kFields[] = {{10, &Circle::center}, {40, &Circle::radius}};
    ReadTags(kFields, entity.shape.emplace<Circle>(), entity);
}

void EntityReader::ReadArc(Entity& entity) {
    static const Field<Arc> kFields[] = {
        {10, &Arc::center}, {40, &Arc::radius}, {50, &Arc::startAngle}, {51, &Arc::endAngle}};
    ReadTags(kFields, entity.shape.emplace<Arc>(), entity);
}

void EntityReader::ReadEllipse(Entity& entity) {
    static const Field<Ellipse> kFields[] = {{10, &Ellipse::center},
                                             {11, &Ellipse::majorAxis},
                                             {40, &Ellipse::ratio},
                                             {41, &Ellipse::startParam},
                                             {42, &Ellipse::endParam}};
    ReadTags(kFields, entity.shape.emplace<Ellipse>(), entity);
}

void EntityReader::ReadFace(Entity& entity) {
    ReadSpaceFace(entity);
    Face& face = *std::get<Boxed<Face>>(entity.shape);
    std::swap(face.corners[2], face.corners[3]); // stored in zigzag order
    face.filled = true;
    face.hiddenEdges = 0;
}

void EntityReader::ReadSpaceFace(Entity& entity) {
    Face& face = *entity.shape.emplace<Boxed<Face>>(std::make_unique<Face>());
    face.filled = false;
    bool hasFourth = false;
    while (in_.NextTag()) {
        const Tag& tag = in_.tags.Current();
        const int corner = tag.code % 10;
        if (tag.code >= 10 && tag.code < 40 && corner < 4) {
            in_.SetAxis(face.corners[static_cast<size_t>(corner)], tag, tag.code - corner - 10);
            hasFourth = hasFourth || corner == 3;
        } else if (tag.code == 70) {
            face.hiddenEdges = static_cast<uint8_t>(tag.Integer() & 0xF);
        } else {
            SetCommon(entity);
        }
    }
    if (!hasFourth) face.corners[3] = face.corners[2];
}

void EntityReader::ReadInsert(Entity& entity) {
    static const Field<Insert> kFields[] = {
        {2, &Insert::block},          {10, &Insert::at},         {41, &Insert::scaleX},  {42, &Insert::scaleY},
        {43, &Insert::scaleZ},        {50, &Insert::rotation},   {70, &Insert::columns}, {71, &Insert::rows},
        {44, &Insert::columnSpacing}, {45, &Insert::rowSpacing},
    };
    constexpr uint32_t kMaxCells = INT16_MAX; // the file format's own limit
    Insert& insert = *entity.shape.emplace<Boxed<Insert>>(std::make_unique<Insert>());
    ReadTags(kFields, insert, entity);
    TakeExtended(entity);
    insert.columns = std::clamp(insert.columns, 1u, kMaxCells);
    insert.rows = std::clamp(insert.rows, 1u, kMaxCells);
    ReadAttributesOf(insert);
}

// A table is also drawn by its anonymous block; the following groups are the contents of its cells.
void EntityReader::ReadTable(Entity& entity) {
    static const Field<Insert> kFields[] = {{2, &Insert::block}, {10, &Insert::at}};
    Insert& insert = *entity.shape.emplace<Boxed<Insert>>(std::make_unique<Insert>());
    while (in_.NextTag()) {
        const Tag& tag = in_.tags.Current();
        if (tag.Is(100, "AcDbTable")) {
            while (in_.NextTag()) {
            }
            return;
        }
        if (!in_.SetField(kFields, insert, tag)) SetCommon(entity);
    }
}

void EntityReader::ReadDimension(Entity& entity) {
    static const Field<Dimension> kFields[] = {{2, &Dimension::block}, {12, &Dimension::offset}};
    ReadTags(kFields, *entity.shape.emplace<Boxed<Dimension>>(std::make_unique<Dimension>()), entity);
}

void EntityReader::ReadLeader(Entity& entity) {
    Leader& leader = entity.shape.emplace<Leader>();
    while (in_.NextTag())
        if (!in_.AddCoordinate(leader.vertices, in_.tags.Current(), 10)) SetCommon(entity);
}

void EntityReader::ReadViewport(Entity& entity) {
    entity.shape.emplace<Boxed<Viewport>>(std::make_unique<Viewport>());
    while (in_.NextTag())
        SetCommon(entity);
}

void EntityReader::ReadSpline(Entity& entity) {
    Spline& spline = *entity.shape.emplace<Boxed<Spline>>(std::make_unique<Spline>());
    while (in_.NextTag()) {
        const Tag& tag = in_.tags.Current();
        switch (tag.code) {
        case 70:
            spline.closed = (tag.Integer() & 1) != 0;
            break;
        case 71:
            spline.degree = tag.Integer();
            break;
        case 40:
            spline.knots.push_back(in_.Real(tag));
            break;
        case 41:
            spline.weights.push_back(in_.Real(tag));
            break;
        default:
            if (!in_.AddCoordinate(spline.controlPoints, tag, 10) && !in_.AddCoordinate(spline.fitPoints, tag, 11))
                SetCommon(entity);
        }
    }
    if (!MakeValid(spline)) Reject("its knots and control points are inconsistent");
}

bool MakeValid(Spline& spline) {
    constexpr int kHighestDegree = 25;
    const size_t points = spline.controlPoints.size();
    const bool positive = std::all_of(spline.weights.begin(), spline.weights.end(), [](double w) { return w > 0; });
    if (spline.weights.size() != points || !positive) spline.weights.clear();
    const bool degree = spline.degree >= 1 && spline.degree <= kHighestDegree;
    const bool fits = degree && points > static_cast<size_t>(spline.degree) &&
                      spline.knots.size() == points + static_cast<size_t>(spline.degree) + 1 &&
                      std::is_sorted(spline.knots.begin(), spline.knots.end()) &&
                      spline.knots[static_cast<size_t>(spline.degree)] < spline.knots[points];
    if (!fits) spline.controlPoints.clear();
    return fits || spline.fitPoints.size() >= 2;
}

} // namespace dxf
