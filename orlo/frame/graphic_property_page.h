// The base of every page that edits the selected graphics: the library's own pages, and pages that a host derives.
//
// Graphics do not change while the user is editing. Notifications set a dirty flag for each control. When the page is
// left, the values of the edited controls are written back, either all or none. A dirty control that displays the same
// as when it was loaded does not count as edited: its member keeps the loaded value, which may have more digits than
// the text shows, and nothing is written. Notifications are ignored while the page is being loaded.
//
// A derived page supplies a dialog template and DoDataExchange; with a preview also CreatePreviewGraphic and
// SetPreviewProperties:
//
//   void CMyPage::DoDataExchange(CDataExchange* pDX) {
//       // Load: merges the property of the selection into the member. Save: adds a pending write.
//       DDP_Text(pDX, IDC_WIDTH, m_dWidth, "PenWidth");
//       // Transfers between member and control; invalid text ends the exchange.
//       DDX_Text(1, pDX, IDC_WIDTH, m_dWidth);
//       // Validates only what the user entered, not a stored value.
//       if (IsEdited(IDC_WIDTH)) DDV_MinMaxDouble(1, pDX, m_dWidth, 0.0, 1e38);
//       // Last: carries out the pending writes.
//       DDP_PostProcessing(pDX);
//   }
#pragma once

#include <afxcoll.h>

#include <memory>

#include "orlo/frame/orlo_property_page.h"
#include "orlo/host/graphic.h"

class CGraphicPropertySheet;

// One entry per child window of an active page.
struct ControlStatus {
    unsigned int nID;
    int bDirty;
};

class ORLO_API CGraphicPropertyPage : public COrloPropertyPage {
    DECLARE_DYNAMIC(CGraphicPropertyPage)

public:
    // Uses the low 16 bits of nIDTemplate. If nIDCaption is 0, the title is the caption of the template.
    CGraphicPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption);
    ~CGraphicPropertyPage() override;

    BOOL OnInitDialog() override;
    // Marks all controls as unchanged at every activation.
    BOOL OnSetActive() override;

    // Draws this page's preview graphic, if any, into rect (device pixels) of a CGraphicPreview's viewport.
    virtual void DrawPreview(CDC* pDC, void* pViewport, CRect& rect);
    virtual void SetModifiedFlag(int bModified);
    // Returns a new graphic without an owner, which the page then owns, or null for no preview.
    virtual void* CreatePreviewGraphic();
    // Transfers the values of all controls, or only of dirty ones if bAll is 0, to the preview graphics without
    // reporting errors, and then calls UpdatePreview(1).
    virtual void SetPreviewProperties(int bAll);
    virtual void OnObjectsChanged();
    virtual int OnEditProperty(long dispid);

    // Returns 1 if the control is dirty or is not tracked.
    int GetControlStatus(unsigned int nID);
    // Returns 0 if the control is not tracked.
    int SetControlStatus(unsigned int nID, int bDirty);
    // Returns 1 if the control is dirty and displays something other than when it was last loaded or written, or, for a
    // control that is not bound by a DDP_ function, when the page was activated. Text that was typed and undone is not
    // an edit. Also returns 1 for a dirty control that does not display its value, such as a push button.
    int IsEdited(unsigned int nID);
    // Ignores changes of this control (low 16 bits of the identifier).
    void IgnoreApply(unsigned int nID);

    void SetPageName(const char* lpszPageName);
    // Stores a loaded dialog resource and its size in pixels. The page frees the resource.
    void SetDialogResource(void* hDialog);
    void SetHelpInfo(const char* lpszDocString, const char* lpszHelpFile, unsigned long dwHelpContext);
    // Shows a system message box without an owner. If the caption is null, uses the application's name.
    int MessageBoxA(const char* lpszText, const char* lpszCaption, unsigned int nType);

    // Iterate over the selection (bPreview 0) or the sheet's preview group. pPos points to the caller's 32-bit
    // position. The flag kFlagPreview of each returned graphic is cleared or set accordingly. Return null at the end,
    // or if there are no graphics.
    void* GetFirstObject(void* pPos, int bPreview);
    void* GetNextObject(void* pPos, int bPreview);

    // Merge one property of all graphics of the set. Return 1 if a graphic has it, with *pValue set to the common value
    // or to the indeterminate marker of its type (orlo/binding/indeterminate.h). Otherwise return 0 and leave *pValue
    // unchanged.
    int GetPropText(const char* pszPropName, unsigned char* pValue, int bPreview);
    int GetPropText(const char* pszPropName, unsigned short* pValue, int bPreview);
    int GetPropText(const char* pszPropName, int* pValue, int bPreview);
    int GetPropText(const char* pszPropName, unsigned int* pValue, int bPreview);
    int GetPropText(const char* pszPropName, long* pValue, int bPreview);
    int GetPropText(const char* pszPropName, unsigned long* pValue, int bPreview);
    int GetPropText(const char* pszPropName, float* pValue, int bPreview);
    int GetPropText(const char* pszPropName, double* pValue, int bPreview);
    int GetPropText(const char* pszPropName, CString* pValue, int bPreview);
    int GetPropCheck(const char* pszPropName, int* pValue, int bPreview);
    int GetPropCheck(const char* pszPropName, unsigned short* pValue, int bPreview);
    int GetPropRadio(const char* pszPropName, int* pValue, int bPreview);
    int GetPropRadio(const char* pszPropName, unsigned short* pValue, int bPreview);
    int GetPropIndex(const char* pszPropName, int* pValue, int bPreview);
    // pPair receives a mask of the bits in which graphics differ, and the bits of the first graphic.
    int GetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview);

    // Write one value to all graphics of the set that have the property. Return 1 if at least one has it. The marker is
    // not written.
    int SetPropText(const char* pszPropName, unsigned char& value, int bPreview);
    int SetPropText(const char* pszPropName, unsigned short& value, int bPreview);
    int SetPropText(const char* pszPropName, int& value, int bPreview);
    int SetPropText(const char* pszPropName, unsigned int& value, int bPreview);
    int SetPropText(const char* pszPropName, long& value, int bPreview);
    int SetPropText(const char* pszPropName, unsigned long& value, int bPreview);
    int SetPropText(const char* pszPropName, float& value, int bPreview);
    int SetPropText(const char* pszPropName, double& value, int bPreview);
    int SetPropText(const char* pszPropName, CString& value, int bPreview);
    // Writes any value below 1 as 0, and nothing for values above 1.
    int SetPropCheck(const char* pszPropName, int value, int bPreview);
    int SetPropCheck(const char* pszPropName, unsigned short value, int bPreview);
    int SetPropRadio(const char* pszPropName, int value, int bPreview);
    int SetPropRadio(const char* pszPropName, unsigned short value, int bPreview);
    int SetPropIndex(const char* pszPropName, int value, int bPreview);
    // Bits set in the mask keep their state in each graphic.
    int SetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview);

    // Returns the sheet that contains the page, or null before its window is created or in a sheet of another class.
    CGraphicPropertySheet* GetSheet() const;
    GraphicStruct* GetPreviewGraphic() const;
    unsigned int GetTemplateNumber() const;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnFinalRelease() override;

    GraphicStruct* m_pPreviewGraphic; // in the sheet's preview group, but freed by this page
    CMapWordToOb m_mapDDP;            // pending writes of the DDP_ functions
    unsigned int m_nIDTemplate;
    unsigned int m_nIDCaption;
    CString m_strPageName;
    CSize m_sizePage; // in device pixels; set by SetDialogResource
    CString m_strDocString;
    CString m_strHelpFile;
    unsigned long m_dwHelpContext;
    int m_bRefreshPending; // reload the controls at the next refresh command
    int m_bInitializing;   // ignore notifications of controls
    // Set by a page's constructor to have labels moved directly before their fields, without tab stops, and the widths
    // of controls fitted to the page and the screen resolution, as the library's templates require. Otherwise controls
    // stay as in the template.
    int m_bFitControls = 0;
    int m_nControls;
    ControlStatus* m_pStatus;
    CWordArray m_IDArray;
    void* m_hDialog;
    CSize m_sizeWanted; // dialog units, set by the constructor: the sheet opens at least that large, if it fits
    class PropertyAccess* m_pProperties = nullptr; // not owned; null: the property tables of the graphics

private:
    friend class CGraphicPropertySheet;
    friend class PageState;
    friend class LoadedControls;
    friend CMapWordToOb& PendingWritesOf(CGraphicPropertyPage* page);
    std::unique_ptr<class PageState> m_pState;
};
