// A drawing with many selected graphics of every kind: outlines, texts and insertions in turn.
#pragma once

#include "bench/sheet/selected_drawing.h"

class MixedDrawing : public SelectedDrawing {
public:
    explicit MixedDrawing(int n);
};
