// The General page, first in every sheet: layer and attribute text of the selected graphics and, in a sheet for a
// style, the style's name with New and Delete.
//
// The style part changes no properties: selecting, creating or deleting a style ends the sheet with a code
// (StyleEndCode).
#pragma once

#include "orlo/export.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/resources/resource.h"

class CGeneralPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CGeneralPage)

public:
    static constexpr unsigned int kTemplate = IDD_GENERAL_PAGE;

    CGeneralPage();

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // Fails with a beep while the style combo box shows a name other than that of the current style.
    BOOL OnKillActive() override;

protected:
    void OnStyleEditChange();
    void OnStyleCloseUp(); // also handles every other selection
    void OnStyleKillFocus();
    void OnNew();
    void OnDelete();

    DECLARE_MESSAGE_MAP()

private:
    void ExchangeInfo(CDataExchange* pDX);
    bool HasStylePart() const;
    TableStruct* StyleTable() const;
    CString CurrentStyleName() const;
    CString NameInCombo() const;
    int FindInCombo(const char* name) const;
    bool CanDelete(const char* name) const;
    void EnableButtons(const char* name);
    void SelectInCombo(int index);
    void LeaveComboForStyle(const CString& name, HWND focus);
    void SelectCurrentStyle();
    bool NamesOtherStyle(const char* name);

    unsigned int m_nLayer;
    unsigned int m_nStyleTree;
    CString m_strInfo;
    int m_bStyleChecked; // the focus change that follows was already handled
};

// Returns 0 for a name that is reserved by the host.
int IsUserStyleName(CString name);
