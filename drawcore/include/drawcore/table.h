// Filling tables, for host programs; reading them is in orlo/host/table.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Adds an entry and gives its identifier; 0 if the name is empty, longer than 255 bytes or taken (case does not
// count), or if the table is full. data by the kind of table:
//   "_Colors_"       const COLORREF*, copied
//   "_LineStyles_"   const char*, a description, copied, or null; the style is solid (see linestyle.h for dashes)
//   "_BrushStyles_"  not read; the style is solid
//   "_Layers_"       not read; the layer is on, white and solid (see layer.h)
//   "_Blocks_"       GraphicStruct*, which the table then owns
//   any other        kept as it is and given back by TableEntryGetData; stays the caller's
DRAWCORE_API uint16_t TableEntryAdd(TableStruct*, const char* name, void* data);
// Removes the entry with what it owns. 0 if there isn't one.
DRAWCORE_API int TableEntryDelete(TableStruct*, uint16_t id);
