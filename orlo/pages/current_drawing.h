// The drawing that the host has open, and its tables.
#pragma once

#include "orlo/host/records.h"

// Null if there is none.
DrawingStruct* CurrentDrawing();
TableStruct* CurrentTable(const char* name);
