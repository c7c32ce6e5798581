// Counts of the objects that this process holds, to see whether something leaks. Only differences mean anything: run
// the work once to warm up, count, run it many times, count again.
#pragma once

// Pens, brushes, fonts, bitmaps, regions, device contexts.
int GdiObjectCount();

// Windows of this thread, children included, and menus.
int UserObjectCount();
