// A drawing of many graphics of every kind, all selected: outlines, texts and insertions in turn.
#pragma once

#include "orlo/host/host.h"

class MixedCrowd {
public:
    explicit MixedCrowd(int n);
    ~MixedCrowd();
    MixedCrowd(const MixedCrowd&) = delete;
    MixedCrowd& operator=(const MixedCrowd&) = delete;

    DrawingStruct* Drawing() const { return m_drawing; }
    GraphicStruct* Selection() const { return m_selection; }

private:
    DrawingStruct* m_drawing;
    GraphicStruct* m_selection;
};
