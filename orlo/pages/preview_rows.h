// Transfers control values to the preview graphic, one table row per property.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "orlo/frame/graphic_property_page.h"

// The controls of one value (0 for unused entries), and the function that transfers it to the preview graphics.
template <class Page>
struct PreviewRow {
    std::array<unsigned int, 6> controls;
    void (*transfer)(Page& page, CDataExchange* pDX, int bAll);

    bool IsDirty(Page& page) const {
        return std::any_of(controls.begin(), controls.end(),
                           [&](unsigned int nID) { return nID != 0 && page.GetControlStatus(nID); });
    }
};

// Transfers the values of the rows that have a dirty control, or with bAll of all rows.
template <class Page, size_t N>
void TransferToPreview(Page& page, const PreviewRow<Page> (&rows)[N], int bAll) {
    CDataExchange save(&page, TRUE);
    for (const PreviewRow<Page>& row : rows)
        if (bAll || row.IsDirty(page)) row.transfer(page, &save, bAll);
}

// Transfers the color selected in the control, if any.
void TransferColor(CGraphicPropertyPage& page, CDataExchange* pDX, int nID, const char* pszPropName);

// Transfers the state of a three-state check box. Such a box is indeterminate at first, and the first click should make
// it determinate for good. If the user clicks it into the indeterminate state (bAll 0), it is therefore set to the
// opposite of last, its last determinate state, which the call updates.
void TransferCheck(CGraphicPropertyPage& page, CDataExchange* pDX, int nID, int bAll, int& last,
                   const char* pszPropName);
