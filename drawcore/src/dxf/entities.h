// The entities of a DXF drawing as plain data: what the file contains, angles in degrees, lengths in drawing
// units. Coordinates are as stored; where an entity has an object coordinate system, says so, and placement.h
// converts.
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

// Positions in the lists of a Document. A reference to a name that no table holds makes an entry there.
enum class LayerIndex : uint32_t {};
enum class LineTypeIndex : uint32_t {
    none = 0xFFFFFFFD, // no line at all; of no file
    byLayer = 0xFFFFFFFE,
    byBlock = 0xFFFFFFFF
};
enum class TextStyleIndex : uint32_t {};
enum class BlockIndex : uint32_t { none = 0xFFFFFFFF };

struct Line {
    Vec3 start; // world
    Vec3 end;
};

struct PointMark {
    Vec3 at; // world
};

struct Circle {
    Vec3 center; // object system
    double radius = 0;
};

struct Arc {
    Vec3 center; // object system
    double radius = 0;
    double startAngle = 0; // counter-clockwise from start to end
    double endAngle = 360;
};

struct Ellipse {
    Vec3 center; // world
    Vec3 majorAxis;
    double ratio = 1;      // minor to major axis
    double startParam = 0; // radians, not angles
    double endParam = 6.283185307179586;
};

// LWPOLYLINE, and POLYLINE with its VERTEX records.
struct Polyline {
    enum class Kind : uint8_t { flat, spatial, mesh, faces };
    struct Vertex {
        Vec3 at; // object system if flat, else world
        double bulge = 0;
        double startWidth = 0; // of the segment to the next vertex
        double endWidth = 0;
    };
    Kind kind = Kind::flat;
    bool closed = false;        // in the direction of m for a mesh
    bool closedN = false;       // mesh only
    bool dashesThrough = false; // the dash pattern continues around corners
    uint32_t rows = 0;          // mesh only: vertices[row * columns + column]
    uint32_t columns = 0;
    std::vector<Vertex> vertices;
    // faces only: positions in vertices counted from 1, 0 for none; negative: the edge from there is not
    // seen.
    std::vector<std::array<int, 4>> faces;
};

struct Spline {
    int degree = 3;
    bool closed = false;
    std::vector<double> knots;
    std::vector<double> weights;     // empty: all 1
    std::vector<Vec3> controlPoints; // world
    std::vector<Vec3> fitPoints;     // used where there are no control points
};

// TEXT, ATTRIB and ATTDEF.
struct Text {
    enum class Horizontal : uint8_t { left, center, right, aligned, middle, fit };
    enum class Vertical : uint8_t { baseline, bottom, middle, top };
    // A definition is shown only outside of blocks: within a block, inserts bring attributes of their
    // own.
    enum class Role : uint8_t { text, attribute, definition };
    Role role = Role::text;
    std::string text; // UTF-8, control codes and escapes as stored: see ToDisplayText
    std::string tag;  // ATTRIB and ATTDEF
    Vec3 insertion;   // object system
    Vec3 alignment;   // object system; in use where an alignment is not left on the baseline
    double height = 0;
    double rotation = 0;
    double widthFactor = 1;
    double oblique = 0;
    bool backward = false;
    bool upsideDown = false;
    bool hidden = false; // an attribute that is not shown
    Horizontal horizontal = Horizontal::left;
    Vertical vertical = Vertical::baseline;
    TextStyleIndex style{};
};

struct MText {
    std::string text; // UTF-8, inline codes as stored: see ReadInlineCodes
    Vec3 insertion;   // world
    double height = 0;
    double width = 0;        // of the column in which words wrap; 0: none
    Vec3 direction{1, 0, 0}; // of the lines, in the world; not of length 1
    int attachment = 1;      // 1 top left, 2 top center ... 9 bottom right
    double lineSpacing = 1;
    TextStyleIndex style{};
};

struct Entity;

struct Insert {
    BlockIndex block = BlockIndex::none;
    Vec3 at; // object system
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
        Vec3 end;              // ellipse: the major axis
        double radius = 0;     // arc; ellipse: minor to major axis
        double startAngle = 0; // degrees; mirrored where clockwise
        double endAngle = 360;
        Spline spline;
    };
    struct Loop {
        int flags = 0;
        Polyline outline; // in use where edges is empty
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
    int style = 0; // islands: 0 alternate, 1 outermost, 2 ignored
    double elevation = 0;
    double angle = 0;
    double scale = 1;
    bool crossed = false;
    std::vector<Loop> loops; // object system
    std::vector<PatternLine> lines;
};

// SOLID and TRACE (filled, object system), 3DFACE (edges, world). Corners in order around the face.
struct Face {
    std::array<Vec3, 4> corners;
    bool filled = true;
    uint8_t hiddenEdges = 0; // bit n: edge from corner n
};

// A dimension is drawn by its anonymous block.
struct Dimension {
    BlockIndex block = BlockIndex::none;
    Vec3 offset; // of the block; zero but for copies
};

struct Leader {
    std::vector<Vec3> vertices; // world
};

// Not shown.
struct Viewport {};

// Larger kinds are held apart, so that a drawing of a million lines stays small.
template <class T>
using Apart = std::unique_ptr<T>;

using Shape = std::variant<Line, PointMark, Circle, Arc, Ellipse, Polyline, Leader, Apart<Spline>, Apart<Text>,
                           Apart<MText>, Apart<Insert>, Apart<Hatch>, Apart<Face>, Apart<Dimension>, Apart<Viewport>>;

constexpr int16_t kIndexByBlock = 0;
constexpr int16_t kIndexByLayer = 256;

constexpr int16_t kLineWeightByLayer = -1;
constexpr int16_t kLineWeightByBlock = -2;
constexpr int16_t kLineWeightDefault = -3;

// What the file format has no group for: a name with numbers or a text, kept in extended data under kApplication.
struct OwnValue {
    std::string name;
    std::string text;
    std::vector<double> numbers;
};
inline bool operator==(const OwnValue& a, const OwnValue& b) {
    return a.name == b.name && a.text == b.text && a.numbers == b.numbers;
}
using OwnData = std::vector<OwnValue>;
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
    Vec3 normal{0, 0, 1}; // the extrusion direction: z axis of the object system
    uint32_t line = 0;    // of the file, for messages
    uint32_t offset = 0;  // of its record in the text of the file
    Apart<OwnData> own;   // null: none
};

} // namespace dxf
