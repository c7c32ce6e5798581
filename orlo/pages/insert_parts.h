// A block insertion taken apart and put together again.
//
// An insertion's matrix is that of these steps: scale, turn about z, about y, about x, move. Every matrix without shear
// comes back from its parts, a mirrored one with a negative scale z. A sheared one comes back without its shear.
#pragma once

#include "orlo/host/graphic.h"

struct InsertParts {
    double position[3]; // drawing units
    double scale[3];
    double rotation[3]; // radians, about x, y and z
};

// Does not touch what cannot be computed: the whole record for a graphic without the four vertices of an insertion, the
// rotations if an axis is collapsed (1e-7 or shorter).
void InsertGetParts(GraphicStruct* graphic, InsertParts* parts);

// Writes the four vertices; nothing to a graphic that lacks them. Scales of almost 1 (all three, CompareDoubles) and
// rotations of at most 1e-7 are treated as absent.
void InsertSetParts(GraphicStruct* graphic, const InsertParts* parts);

// The parts of any insertion. The rotations of one with collapsed axes are those of the axes that are left, each
// missing one at right angles to the others; rotations of at most 1e-7 are 0. False, and the record is meaningless, for
// a graphic without the four vertices, or with one that is not finite. withRotationZ false skips that rotation: it
// takes half of the time, and in most selections it differs.
bool ReadInsertParts(GraphicStruct* graphic, InsertParts& parts, bool withRotationZ = true);

// Carries the insertion from its parts to others. One that is only moved keeps its axes as they are, sheared ones too.
// Writes nothing if the parts are equal or a new one is not a number.
void ChangeInsertParts(GraphicStruct* graphic, const InsertParts& from, const InsertParts& to);
