// Counts of existing objects, for programs and tests that look for leaks.
#pragma once

#include "orlo/host/api.h"

typedef struct DrawCoreObjectCounts {
    long blocks;   // memory blocks of DrawCoreNew, including strings
    long graphics; // including those of drawings
    long vertices; // without those of graphics
    long viewports;
} DrawCoreObjectCounts;

// Stores the current counts of the process.
DRAWCORE_API void DrawCoreGetObjectCounts(DrawCoreObjectCounts*);
