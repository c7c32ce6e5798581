// A drawing with selected graphics of every kind: two of each, which differ in all properties.
#pragma once

#include <memory>

#include "orlo/frame/graphic_property_sheet.h"
#include "support/test_drawing.h"

enum Content { kShapes = 1, kTexts = 2, kInsertions = 4, kEverything = 7 };

class EveryKind {
public:
    EveryKind();
    ~EveryKind();
    EveryKind(const EveryKind&) = delete;
    EveryKind& operator=(const EveryKind&) = delete;

    DrawingStruct* Drawing() const { return m_drawing.Get(); }
    GraphicStruct* Selection() const { return m_selection; }

    // Adds two of each of these kinds (Content) to drawing and selection.
    void Select(int content);
    // Creates a sheet for the selection with all its pages.
    std::unique_ptr<CGraphicPropertySheet> NewSheet() const;

private:
    void Add(GraphicStruct* graphic);
    void AddShape(int i);
    void AddText(int i);
    void AddInsertion(int i);

    TestDrawing m_drawing;
    GraphicStruct* m_selection;
    uint16_t m_block;
};
