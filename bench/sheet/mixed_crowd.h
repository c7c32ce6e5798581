// A drawing of many graphics of every kind, all selected: outlines, texts and insertions in turn.
#pragma once

#include "bench/sheet/crowd.h"

class MixedCrowd : public Crowd {
public:
    explicit MixedCrowd(int n);
};
