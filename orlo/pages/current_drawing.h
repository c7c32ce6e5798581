// The drawing that is open in the host, and its tables.
#pragma once

#include "orlo/host/records.h"

// Returns null if there is none.
DrawingStruct* CurrentDrawing();
TableStruct* CurrentTable(const char* name);
