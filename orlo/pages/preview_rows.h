// How the controls of a page bring their values to its preview: one row of a table for each value.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "orlo/frame/graphic_property_page.h"

// The controls of one value, 0 where there are no more, and what brings that value to the preview graphics.
template <class Page>
struct PreviewRow {
    std::array<unsigned int, 6> controls;
    void (*carry)(Page& page, CDataExchange* pDX, int bAll);

    bool IsDirty(Page& page) const {
        return std::any_of(controls.begin(), controls.end(),
                           [&](unsigned int nID) { return nID != 0 && page.GetControlStatus(nID); });
    }
};

// Carries the values of the rows that have a dirty control; with bAll those of all rows.
template <class Page, size_t N>
void CarryToPreview(Page& page, const PreviewRow<Page> (&rows)[N], int bAll) {
    CDataExchange save(&page, TRUE);
    for (const PreviewRow<Page>& row : rows)
        if (bAll || row.IsDirty(page)) row.carry(page, &save, bAll);
}

// The color that the control has selected; nothing without a selection.
void CarryColor(CGraphicPropertyPage& page, CDataExchange* pDX, int nID, const char* pszPropName);

// The state of a three-state box. The box comes up indeterminate, leaves that state at the first click, and never
// returns to it: a box that the user has clicked into that state (bAll 0) is set to the opposite of last, its last
// definite state, which the call keeps.
void CarryCheck(CGraphicPropertyPage& page, CDataExchange* pDX, int nID, int bAll, int& last, const char* pszPropName);
