// A page defined by a table: a host describes its own properties, and the library lays out the dialog, and reads,
// merges, validates and writes the values as on its own pages.
//
//   FieldTable table = ...;                                   // field_row.h
//   AddFieldPage(sheet, 100, std::move(table));               // before DoModal or Create
//
// A field is disabled if no selected graphic has its property. Fields whose values differ show "*****", "Indeterminate"
// (angles, scales), "<Indeterminate>" (texts), or no selection. A page writes only the fields that the user has edited,
// and nothing at all if one of them is invalid; a message box then states the reason, and the field receives the focus.
//
// The page opens at the size that its rows require, with two columns if one would be too tall, and scrolls if the sheet
// is smaller. It is laid out from right to left if the owner's window is.
#pragma once

#include <memory>

#include "orlo/export.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/field_row.h"

class FieldPageParts; // internal: rows with their controls

class ORLO_API CFieldPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CFieldPage)

public:
    // nPage identifies the page in its sheet, like the number of a dialog template, and must be from 1 to 28999. Throws
    // std::invalid_argument with a message that names the row if the table is invalid: no rows or more than kMaxRows,
    // an unknown kind, a label or a property that is missing or not allowed, two rows with the same property, reversed
    // limits, a choice without texts or with an empty one, `set` without `get`, a button without `press`.
    CFieldPage(unsigned int nPage, FieldTable table);
    ~CFieldPage() override;

    static constexpr size_t kMaxRows = 1000;

    // Returns the control identifier of the row with that index in the table: of its field, or of the first of its
    // radio buttons.
    static constexpr int FieldID(size_t row) { return kFirstFieldID + kIDsPerField * static_cast<int>(row); }

    // Returns whether the table accepts one of the selected graphics of the sheet.
    bool IsFor(CGraphicPropertySheet* sheet) const;
    // Reloads the fields that have not been edited. Does nothing before the page has a window.
    void Reload();

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    // Returns a copy of the first accepted graphic in the selection if a row is shown in the preview, else null.
    void* CreatePreviewGraphic() override;
    void SetPreviewProperties(int bAll) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static constexpr int kFirstFieldID = 1000, kIDsPerField = 4;

    std::unique_ptr<FieldPageParts> m_parts;
};

// Adds a page for the table if the table accepts one of the selected graphics and the sheet has no page with that
// number. Returns the page, which the sheet owns, or null. Throws like the constructor.
ORLO_API CFieldPage* AddFieldPage(CGraphicPropertySheet* sheet, unsigned int nPage, FieldTable table);
