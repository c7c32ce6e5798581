// Drawings of one entity each with its extents: one row for each way to place an entity.
#pragma once

#include <cmath>

struct ExtentsRow {
    const char* name;
    const char* entities;
    double x1, y1, x2, y2;
};

// L: a line from (0,0) to (2,1). C: a circle of radius 1 at (0,0). N: L rotated by 90 degrees, at (10,0).
inline const char kExtentsBlocks[] = "0|BLOCK|2|L|10|0|20|0|0|LINE|11|2|21|1|0|ENDBLK|"
                                     "0|BLOCK|2|C|0|CIRCLE|40|1|0|ENDBLK|"
                                     "0|BLOCK|2|N|10|10|20|0|0|INSERT|2|L|10|10|50|90|0|ENDBLK|"
                                     "0|BLOCK|2|*D1|0|LINE|11|5|21|5|0|ENDBLK";

inline const double kHalf = std::sqrt(0.5);

inline const ExtentsRow kExtentsRows[] = {
    {"line", "0|LINE|10|1|20|2|11|-3|21|4", -3, 2, 1, 4},
    {"circle", "0|CIRCLE|10|1|20|2|40|3", -2, -1, 4, 5},
    {"arc over the top", "0|ARC|10|0|20|0|40|1|50|45|51|135", -kHalf, kHalf, kHalf, 1},
    {"arc through zero", "0|ARC|40|1|50|315|51|45", kHalf, -kHalf, 1, kHalf},
    {"arc from below", "0|ARC|40|1|210|0|220|0|230|-1|50|0|51|90", -1, 0, 0, 1},
    {"ellipse", "0|ELLIPSE|11|2|21|2|40|0.5", -std::sqrt(5), -std::sqrt(5), std::sqrt(5), std::sqrt(5)},
    {"half an ellipse", "0|ELLIPSE|11|2|40|0.5|41|0|42|3.141592653589793", -2, 0, 2, 1},
    {"tilted circle", "0|CIRCLE|40|1|210|1|220|0|230|1", -kHalf, -1, kHalf, 1},
    {"bulge", "0|LWPOLYLINE|10|0|20|0|42|1|10|2|20|0", 0, -1, 2, 0},
    {"closing bulge", "0|LWPOLYLINE|70|1|10|0|20|0|10|2|20|0|42|1", 0, 0, 2, 1},
    {"clockwise bulge", "0|LWPOLYLINE|10|0|20|0|42|-1|10|2|20|0", 0, 0, 2, 1},
    {"mirrored outline", "0|LWPOLYLINE|210|0|220|0|230|-1|10|1|20|0|10|2|20|3", -2, 0, -1, 3},
    {"spline", "0|SPLINE|71|2|40|0|40|0|40|0|40|1|40|1|40|1|10|0|20|0|10|1|20|2|10|2|20|0", 0, 0, 2, 1},
    {"spline of a circle",
     "0|SPLINE|71|2|40|0|40|0|40|0|40|1|40|1|40|1|41|1|41|0.7071067811865476|41|1|10|1|20|0|10|1|20|1|10|0|"
     "20|1",
     0, 0, 1, 1},
    {"spline by fit points", "0|SPLINE|71|3|11|0|21|0|11|1|21|0|11|2|21|0", 0, 0, 2, 0},
    {"solid", "0|SOLID|10|0|20|0|11|2|21|0|12|0|22|3|13|2|23|4", 0, 0, 2, 4},
    {"face", "0|3DFACE|10|0|20|0|11|2|21|0|12|0|22|3", 0, 0, 2, 3},
    {"hatch outline", "0|HATCH|91|1|92|2|10|0|20|0|42|1|10|2|20|0|42|0|75|0|98|1|10|99|20|99", 0, -1, 2, 0},
    {"clockwise hatch arc", "0|HATCH|91|1|92|0|93|1|72|2|10|0|20|0|40|1|50|0|51|90|73|0|75|0", 0, -1, 1, 0},
    {"hatch ellipse by angle", "0|HATCH|91|1|92|0|93|1|72|3|10|0|20|0|11|2|21|0|40|0.5|50|0|51|90|73|1|75|0", 0, 0, 2,
     1},
    {"mesh", "0|POLYLINE|70|16|71|2|72|2|0|VERTEX|10|0|0|VERTEX|10|4|0|VERTEX|20|5|0|VERTEX|10|4|20|5|0|SEQEND", 0, 0,
     4, 5},
    {"leader", "0|LEADER|10|1|20|1|10|2|20|5", 1, 1, 2, 5},
    {"insert", "0|INSERT|2|L|10|5|20|5", 5, 5, 7, 6},
    {"scaled insert", "0|INSERT|2|L|41|2|42|-3", 0, -3, 4, 0},
    {"rotated insert", "0|INSERT|2|L|50|90", -1, 0, 0, 2},
    {"rotated circle remains a circle", "0|INSERT|2|C|50|30", -1, -1, 1, 1},
    {"stretched circle", "0|INSERT|2|C|41|2|50|90", -1, -2, 1, 2},
    {"array", "0|INSERT|2|L|70|3|71|2|44|10|45|20", 0, 0, 22, 21},
    {"rotated array", "0|INSERT|2|L|70|3|44|10|50|90", -1, 0, 0, 22},
    {"nested", "0|INSERT|2|N|10|1", 0, 0, 1, 2},
    {"insert from below", "0|INSERT|2|L|10|1|20|1|210|0|220|0|230|-1", -3, 1, -1, 2},
    {"dimension", "0|DIMENSION|2|*D1|10|99|20|99", 0, 0, 5, 5},
    {"attribute", "0|INSERT|66|1|2|L|0|ATTRIB|10|-4|20|0|0|SEQEND", -4, 0, 2, 1},
    {"paper space aside", "0|POINT|10|1|0|POINT|67|1|10|99", 1, 0, 1, 0},
    {"unseen ones aside", "0|POINT|10|1|0|LINE|60|1|10|99", 1, 0, 1, 0},
};
