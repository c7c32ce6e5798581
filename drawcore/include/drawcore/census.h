// How many objects are alive, for programs and tests that look for what was not released.
#pragma once

#include "orlo/host/api.h"

struct DrawCoreCensus {
    long blocks;   // of DrawCoreNew, strings among them
    long graphics; // the drawings' own too
    long vertices; // scratch vertices
    long viewports;
};

DRAWCORE_API void DrawCoreGetCensus(DrawCoreCensus*);
