// The page with the geometry of the selected graphics, made from a table.
#pragma once

class CGraphicPropertySheet;

// Adds the page if a graphic with vertices is selected.
void AddGeometryPage(CGraphicPropertySheet* sheet);
