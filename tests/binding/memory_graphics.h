// A set of graphics in memory, as little of a database as a merge over them needs.
#pragma once

#include <list>
#include <string>

#include "orlo/host/graphic.h"

struct MemoryGraphic : GraphicStruct {
    bool has = true; // the property, whatever its name
    double number = 0;
    std::string text;
    bool refuses = false, throws = false; // a write
    int reads = 0;
};

struct MemorySet : GraphicStruct {
    std::list<MemoryGraphic> members;
};
