// A drawing with many selected graphics of every kind: outlines, texts and insertions in turn.
#pragma once

#include "bench/sheet/crowd.h"

class MixedCrowd : public Crowd {
public:
    explicit MixedCrowd(int n);
};
