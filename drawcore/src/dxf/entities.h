// The entities of a DXF drawing as stored in the file, with angles in degrees and lengths in drawing units. Coordinates
// are converted by placement.h where an entity has an object coordinate system, as noted.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "drawcore/src/geometry/vector.h"

namespace dxf {

using drawcore::Vec3;

// Indices into the lists of a Document. A reference to a name that no table declares creates an entry.
enum class LayerIndex : uint32_t {};
enum class LineTypeIndex : uint32_t {
    none = 0xFFFFFFFD, // no line; not stored in files
    byLayer = 0xFFFFFFFE,
    byBlock = 0xFFFFFFFF
};
enum class TextStyleIndex : uint32_t {};
enum class BlockIndex : uint32_t { none = 0xFFFFFFFF };

struct Line {
    Vec3 start; // world coordinates
    Vec3 end;
};

struct PointMark {
    Vec3 at; // world coordinates
};

struct Circle {
    Vec3 center; // object coordinates
    double radius = 0;
};

struct Arc {
    Vec3 center; // object coordinates
    double radius = 0;
    double startAngle = 0; // counterclockwise from start to end
    double endAngle = 360;
};

struct Ellipse {
    Vec3 center; // world coordinates
    Vec3 majorAxis;
    double ratio = 1;      // ratio of the minor to the major axis
    double startParam = 0; // in radians; a parameter rather than an angle
    double endParam = 6.283185307179586;
};

// LWPOLYLINE, and POLYLINE with its VERTEX records.
struct Polyline {
    enum class Kind : uint8_t { flat, spatial, mesh, faces };
    struct Vertex {
        Vec3 at; // object coordinates if flat, else world coordinates
        double bulge = 0;
        double startWidth = 0; // width of the segment to the next vertex
        double endWidth = 0;
    };
    Kind kind = Kind::flat;
    bool closed = false;        // for a mesh, in the direction of m
    bool closedN = false;       // mesh only
    bool dashesThrough = false; // the dash pattern continues around corners
    uint32_t rows = 0;          // mesh only: vertices[row * columns + column]
    uint32_t columns = 0;
    std::vector<Vertex> vertices;
    // Faces only: vertices counted from 1, 0 for none; negative if the edge that starts there is invisible.
    std::vector<std::array<int, 4>> faces;
};

struct Spline {
    int degree = 3;
    bool closed = false;
    std::vector<double> knots;
    std::vector<double> weights;     // empty if all are 1
    std::vector<Vec3> controlPoints; // world coordinates
    std::vector<Vec3> fitPoints;     // used if there are no control points
};

// TEXT, ATTRIB and ATTDEF.
struct Text {
    enum class Horizontal : uint8_t { left, center, right, aligned, middle, fit };
    enum class Vertical : uint8_t { baseline, bottom, middle, top };
    // Definitions are drawn only outside of blocks; in blocks, insertions have their own attributes.
    enum class Role : uint8_t { text, attribute, definition };
    Role role = Role::text;
    std::string text; // UTF-8, with control codes and escapes as stored: see ToDisplayText
    std::string tag;  // ATTRIB and ATTDEF
    Vec3 insertion;   // object coordinates
    Vec3 alignment;   // object coordinates; used unless the alignment is left on the baseline
    double height = 0;
    double rotation = 0;
    double widthFactor = 1;
    double oblique = 0;
    bool backward = false;
    bool upsideDown = false;
    bool hidden = false; // an invisible attribute
    Horizontal horizontal = Horizontal::left;
    Vertical vertical = Vertical::baseline;
    TextStyleIndex style{};
};

struct MText {
    std::string text; // UTF-8, with inline codes as stored: see ReadInlineCodes
    Vec3 insertion;   // world coordinates
    double height = 0;
    double width = 0;        // width of the column for word wrapping; 0: none
    Vec3 direction{1, 0, 0}; // of the lines in world coordinates; not normalized
    int attachment = 1;      // 1 top left, 2 top center ... 9 bottom right
    double lineSpacing = 1;
    TextStyleIndex style{};
};

struct Entity;

struct Insert {
    BlockIndex block = BlockIndex::none;
    Vec3 at; // object coordinates
    double scaleX = 1;
    double scaleY = 1;
    double scaleZ = 1;
    double rotation = 0;
    uint32_t columns = 1; // at least 1
    uint32_t rows = 1;
    double columnSpacing = 0;
    double rowSpacing = 0;
    std::vector<Entity> attributes;
};

struct Hatch {
    struct Edge {
        enum class Kind : uint8_t { line, arc, ellipse, spline };
        Kind kind = Kind::line;
        bool counterClockwise = true;
        Vec3 start;            // line: both ends; arc and ellipse: the center
        Vec3 end;              // ellipse: the major axis; line: its end
        double radius = 0;     // arc; for an ellipse, the ratio of the minor to the major axis
        double startAngle = 0; // in degrees; mirrored if clockwise
        double endAngle = 360;
        Spline spline;
    };
    struct Loop {
        int flags = 0;
        Polyline outline; // used if edges is empty
        std::vector<Edge> edges;
    };
    struct PatternLine {
        double angle = 0;
        Vec3 base;
        Vec3 offset; // from one line of the family to the next
        std::vector<double> dashes;
    };
    std::string pattern;
    bool solid = false;
    bool gradient = false;
    int style = 0; // handling of islands: 0 alternate, 1 outermost, 2 ignored
    double elevation = 0;
    double angle = 0;
    double scale = 1;
    bool crossed = false;
    std::vector<Loop> loops; // object coordinates
    std::vector<PatternLine> lines;
};

// SOLID and TRACE (filled, object coordinates), 3DFACE (edges, world coordinates). Corners are in order around the
// face.
struct Face {
    std::array<Vec3, 4> corners;
    bool filled = true;
    uint8_t hiddenEdges = 0; // bit n: the edge that starts at corner n
};

// A dimension is drawn by its anonymous block.
struct Dimension {
    BlockIndex block = BlockIndex::none;
    Vec3 offset; // offset of the block; nonzero only for copies
};

struct Leader {
    std::vector<Vec3> vertices; // world coordinates
};

// Not drawn.
struct Viewport {};

// Large kinds are stored separately, so that a drawing of a million lines stays small.
template <class T>
using Boxed = std::unique_ptr<T>;

using Shape = std::variant<Line, PointMark, Circle, Arc, Ellipse, Polyline, Leader, Boxed<Spline>, Boxed<Text>,
                           Boxed<MText>, Boxed<Insert>, Boxed<Hatch>, Boxed<Face>, Boxed<Dimension>, Boxed<Viewport>>;

constexpr int16_t kIndexByBlock = 0;
constexpr int16_t kIndexByLayer = 256;

constexpr int16_t kLineWeightByLayer = -1;
constexpr int16_t kLineWeightByBlock = -2;
constexpr int16_t kLineWeightDefault = -3;

// A named value without a DXF group, stored in extended data under kApplication: numbers or a text.
struct ExtendedValue {
    std::string name;
    std::string text;
    std::vector<double> numbers;
};
inline bool operator==(const ExtendedValue& a, const ExtendedValue& b) {
    return a.name == b.name && a.text == b.text && a.numbers == b.numbers;
}
using ExtendedData = std::vector<ExtendedValue>;
constexpr char kApplication[] = "ORLO";

struct Entity {
    Shape shape;
    LayerIndex layer{};
    LineTypeIndex lineType = LineTypeIndex::byLayer;
    int16_t color = kIndexByLayer;
    int16_t lineWeight = kLineWeightByLayer; // 0.01 mm
    int32_t trueColor = -1;                  // 0xRRGGBB; -1: none
    bool inPaperSpace = false;
    bool invisible = false;
    double lineTypeScale = 1;
    Vec3 normal{0, 0, 1};         // the extrusion direction: z axis of the object coordinate system
    uint32_t line = 0;            // line in the file, for messages
    uint32_t offset = 0;          // of its record in the file's text
    Boxed<ExtendedData> extended; // null if there are none
};

// Returns the shape of the entity if it is of that boxed kind, else null.
template <class Kind>
Kind* As(Entity& entity) {
    auto* boxed = std::get_if<Boxed<Kind>>(&entity.shape);
    return boxed ? boxed->get() : nullptr;
}
template <class Kind>
const Kind* As(const Entity& entity) {
    return As<Kind>(const_cast<Entity&>(entity));
}

} // namespace dxf
