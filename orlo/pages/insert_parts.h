// Decomposes block insertions into position, scale and rotation, and composes them again.
//
// The matrix of an insertion consists of these steps: scale, rotate about z, y and x, move. Any matrix without shear
// can be restored from its parts; a mirrored one has a negative z scale. Shear is lost.
#pragma once

#include "orlo/host/graphic.h"

struct InsertParts {
    double position[3]; // in drawing units
    double scale[3];
    double rotation[3]; // in radians, about x, y and z
};

// Members that cannot be computed remain unchanged: the whole record if the graphic lacks the four vertices of an
// insertion, the rotations if an axis is collapsed (1e-7 or shorter).
void InsertGetParts(GraphicStruct* graphic, InsertParts* parts);

// Writes the four vertices, or nothing if the graphic lacks them. Scales of almost 1 (all three, by CompareDoubles) and
// rotations of at most 1e-7 are ignored.
void InsertSetParts(GraphicStruct* graphic, const InsertParts* parts);

// Reads the parts of any insertion. Collapsed axes are replaced by axes perpendicular to the others; rotations of at
// most 1e-7 are 0. Returns false, with the record undefined, if the graphic lacks the four vertices or one of them is
// not finite. If withRotationZ is false, skips that rotation, which takes half of the time and differs in most
// selections.
bool ReadInsertParts(GraphicStruct* graphic, InsertParts& parts, bool withRotationZ = true);

// Changes an insertion from one set of parts to another. If only the position changes, the axes are unchanged, even
// sheared ones. Writes nothing if the parts are equal or a new part is not a number.
void ChangeInsertParts(GraphicStruct* graphic, const InsertParts& from, const InsertParts& to);
