// Counts system objects of this process to detect leaks. Only differences are meaningful: run the operation once to
// warm up, count, run it many times, count again.
#pragma once

// Counts pens, brushes, fonts, bitmaps, regions and device contexts.
int GdiObjectCount();

// Counts windows of this thread, including child windows, and menus.
int UserObjectCount();
