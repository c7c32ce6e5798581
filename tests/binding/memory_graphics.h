// A set of graphics in memory: the minimal database for merging.
#pragma once

#include <list>
#include <string>

#include "orlo/host/graphic.h"

struct MemoryGraphic : GraphicStruct {
    bool has = true; // has the property, under any name
    double number = 0;
    std::string text;
    bool rejects = false, throws = false; // on write
    int reads = 0;
};

struct MemorySet : GraphicStruct {
    std::list<MemoryGraphic> members;
};
