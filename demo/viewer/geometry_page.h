// The page with the geometry of the selected graphics, defined by a table of rows.
#pragma once

class CGraphicPropertySheet;

// Adds the page if a graphic with vertices is selected.
void AddGeometryPage(CGraphicPropertySheet* sheet);
