// What the library expects of its host's drawing database: every record, table and function it uses.
// Declarations only; a host with a database of its own implements them and exports them as drawcore32.dll.
//
//   words.h        names and numbers that both sides use: tables, properties, types, markers
//   records.h      layouts that library and host share byte for byte
//   application.h  the application record, configuration file, host strings
//   drawing.h      drawings and their named tables
//   table.h        tables: named entries and typed variables under 16-bit identifiers
//   units.h        numbers as text in the units of a drawing
//   graphic.h      graphics, their walk, property tables and drawing attributes
//   text.h         text graphics
//   vertex.h       vertices
//   viewport.h     viewports, extents and drawing
//   style.h        line styles and brush styles
//   layer.h        layers
//   block.h        blocks and their insertions
//   matrix.h       transformations
//   regen.h        regen methods
//   memory.h       blocks and strings that cross the boundary
//   picture.h      pictures in memory
//   strings.h      texts of the host
//
// Plain C, for any compiler. In C++, header only, besides: owners.h, owned_string.h, walk.h and property.h.
//
// All lengths in a graphic are drawing units unless said otherwise. Results named "int" are non-zero on success.
// Everything is called on the user-interface thread.
#pragma once

#include "orlo/host/application.h"
#include "orlo/host/block.h"
#include "orlo/host/drawing.h"
#include "orlo/host/graphic.h"
#include "orlo/host/layer.h"
#include "orlo/host/matrix.h"
#include "orlo/host/memory.h"
#include "orlo/host/picture.h"
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

#ifdef __cplusplus
#include "orlo/host/owners.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#endif
