// The functions, records and names that the library requires from the host's drawing database. These are declarations
// only: a host with its own database implements them and exports them from drawcore32.dll.
//
//   words.h        names and numbers that both sides use: tables, properties, types, markers
//   property_list.h  the properties of graphics; included by words.h
//   records.h      records that library and host share byte for byte
//   application.h  the application: current drawing, variables, configuration file
//   drawing.h      drawings: named tables, lengths and angles as text
//   table.h        tables: named entries and typed variables under 16-bit identifiers
//   units.h        numbers and lengths as text
//   graphic.h      graphics: members, property tables, drawing attributes
//   text.h         text graphics
//   vertex.h       vertices
//   viewport.h     viewports, extents and drawing
//   style.h        line styles and brush styles
//   layer.h        layers
//   block.h        blocks and their insertions
//   matrix.h       transformations
//   regen.h        regen methods
//   memory.h       memory blocks and strings that are passed between library and host
//   picture.h      bitmaps in memory
//   strings.h      user-visible strings supplied by the host
//
// All of them are plain C, for any compiler. For C++ there are also the header-only owners.h, owned_string.h, walk.h
// and property.h.
//
// Unless stated otherwise, lengths are in drawing units and angles in radians, a result of type int is non-zero on
// success, all functions are called on the user-interface thread, and pointers to objects are not null.
#pragma once

#include "orlo/host/application.h"
#include "orlo/host/block.h"
#include "orlo/host/drawing.h"
#include "orlo/host/graphic.h"
#include "orlo/host/layer.h"
#include "orlo/host/matrix.h"
#include "orlo/host/memory.h"
#include "orlo/host/picture.h"
#include "orlo/host/property_list.h"
#include "orlo/host/records.h"
#include "orlo/host/regen.h"
#include "orlo/host/strings.h"
#include "orlo/host/style.h"
#include "orlo/host/table.h"
#include "orlo/host/text.h"
#include "orlo/host/units.h"
#include "orlo/host/vertex.h"
#include "orlo/host/viewport.h"
#include "orlo/host/words.h"

#ifdef ORLO_CPP17
#include "orlo/host/owners.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#endif
