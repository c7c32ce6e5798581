// Adds and removes entries of tables. Functions that read them are in orlo/host/table.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Adds an entry. Returns its identifier, or 0 if the name is empty, longer than 255 bytes or already exists (regardless
// of case), or if the table is full. The type of data depends on the table:
//   "_Colors_"       const COLORREF*, copied
//   "_LineStyles_"   const char*, a description, copied, or null; the style is solid (see linestyle.h for dashes)
//   "_BrushStyles_"  ignored; the style is solid
//   "_Layers_"       ignored; the layer is on, white and solid (see layer.h)
//   "_Blocks_"       GraphicStruct*, which the table then owns
//   any other        returned by TableEntryGetData; remains the caller's
DRAWCORE_API uint16_t TableEntryAdd(TableStruct*, const char* name, void* data);
// Removes an entry and frees what it owns. Returns 0 if there is no such entry.
DRAWCORE_API int TableEntryDelete(TableStruct*, uint16_t id);
