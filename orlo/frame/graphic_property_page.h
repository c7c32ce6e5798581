// The base of every page that edits the selected graphics: the library's own pages, and pages that a host derives.
//
// The page does not touch the graphics while the user edits. It keeps one dirty mark per control, set by the
// notifications of the controls; when it is left it writes back what the user has edited, all or nothing. A dirty
// control that shows what it showed when it was loaded is not edited: its member keeps the value that was loaded, of
// which a text may show a few digits only, and nothing is written. While a page is loaded, notifications mark nothing.
// A derived page supplies a dialog template and DoDataExchange; with a preview also CreatePreviewGraphic and
// SetPreviewProperties:
//
//   void CMyPage::DoDataExchange(CDataExchange* pDX) {
//       DDP_Text(pDX, IDC_WIDTH, m_dWidth, "PenWidth");   // the property of the selection, merged; a write left
//       pending DDX_Text(1, pDX, IDC_WIDTH, m_dWidth);            // the member in its control; a bad text ends the
//       exchange if (IsEdited(IDC_WIDTH)) DDV_MinMaxDouble(1, pDX, m_dWidth, 0.0, 1e38); // a stored value is not the
//       user's fault DDP_PostProcessing(pDX);                          // last: the pending writes are carried out
//   }
#pragma once

#include <afxcoll.h>

#include <memory>

#include "orlo/frame/orlo_property_page.h"
#include "orlo/host/graphic.h"

class CGraphicPropertySheet;

// One row per child window of an active page.
struct ControlStatus {
    unsigned int nID;
    int bDirty;
};

class ORLO_API CGraphicPropertyPage : public COrloPropertyPage {
    DECLARE_DYNAMIC(CGraphicPropertyPage)

public:
    // Of nIDTemplate the low 16 bits count; caption 0 is the template's own title.
    CGraphicPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption);
    ~CGraphicPropertyPage() override;

    BOOL OnInitDialog() override;
    // Every activation begins with all controls clean.
    BOOL OnSetActive() override;

    // Draws this page's preview graphic into rect (device pixels) of a CGraphicPreview's viewport; nothing without one.
    virtual void DrawPreview(CDC* pDC, void* pViewport, CRect& rect);
    virtual void SetModifiedFlag(int bModified);
    // A new graphic in no group yet, which the page then owns; null: no preview.
    virtual void* CreatePreviewGraphic();
    // Carries the controls (bAll 0: only dirty ones) to the preview graphics, silently, and ends with UpdatePreview(1).
    virtual void SetPreviewProperties(int bAll);
    virtual void OnObjectsChanged();
    virtual int OnEditProperty(long dispid);

    // 1 for a control that is dirty or has no row.
    int GetControlStatus(unsigned int nID);
    // 0 for a control without a row.
    int SetControlStatus(unsigned int nID, int bDirty);
    // Returns 1 if the control is dirty and shows something else than when it was last loaded or written; a control
    // that no DDP_ function binds, than when the page was activated. Text that was typed and undone is not an edit.
    // Also 1 for a dirty control that does not show its value, such as a push button.
    int IsEdited(unsigned int nID);
    // Changes of this control (low 16 bits) never count.
    void IgnoreApply(unsigned int nID);

    void SetPageName(const char* lpszPageName);
    // Stores a loaded dialog resource, freed with the page, and its size in pixels.
    void SetDialogResource(void* hDialog);
    void SetHelpInfo(const char* lpszDocString, const char* lpszHelpFile, unsigned long dwHelpContext);
    // A system message box without an owner; a null caption is the application's name.
    int MessageBoxA(const char* lpszText, const char* lpszCaption, unsigned int nType);

    // The walk over the selection (bPreview 0) or the sheet's preview group. pPos is the caller's 32-bit word.
    // The graphics that it returns lose, or get, the preview mark. Null at the end, or without a set.
    void* GetFirstObject(void* pPos, int bPreview);
    void* GetNextObject(void* pPos, int bPreview);

    // Merge one property of all graphics of the set. 1 if a graphic has it; then *pValue is the common value, or the
    // indeterminate marker of its type (orlo/binding/indeterminate.h). 0: *pValue is as it was.
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
    // pPair: a mask of the bits in which graphics differ, and the bits of the first graphic.
    int GetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview);

    // Write one value to all graphics of the set that have the property. 1 if there was one; the marker writes nothing.
    int SetPropText(const char* pszPropName, unsigned char& value, int bPreview);
    int SetPropText(const char* pszPropName, unsigned short& value, int bPreview);
    int SetPropText(const char* pszPropName, int& value, int bPreview);
    int SetPropText(const char* pszPropName, unsigned int& value, int bPreview);
    int SetPropText(const char* pszPropName, long& value, int bPreview);
    int SetPropText(const char* pszPropName, unsigned long& value, int bPreview);
    int SetPropText(const char* pszPropName, float& value, int bPreview);
    int SetPropText(const char* pszPropName, double& value, int bPreview);
    int SetPropText(const char* pszPropName, CString& value, int bPreview);
    // Any value below 1 is written as 0; above 1 nothing is written.
    int SetPropCheck(const char* pszPropName, int value, int bPreview);
    int SetPropCheck(const char* pszPropName, unsigned short value, int bPreview);
    int SetPropRadio(const char* pszPropName, int value, int bPreview);
    int SetPropRadio(const char* pszPropName, unsigned short value, int bPreview);
    int SetPropIndex(const char* pszPropName, int value, int bPreview);
    // Bits inside the mask keep each graphic's own state.
    int SetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview);

    // The sheet that the page is in; null before its window is made, or in a sheet of another kind.
    CGraphicPropertySheet* GetSheet() const;
    GraphicStruct* GetPreviewGraphic() const;
    unsigned int GetTemplateNumber() const;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnFinalRelease() override;

    GraphicStruct* m_pPreviewGraphic; // a part of the sheet's preview group, but this page's to free
    CMapWordToOb m_mapDDP;            // writes left pending by the DDP_ functions
    unsigned int m_nIDTemplate;
    unsigned int m_nIDCaption;
    CString m_strPageName;
    CSize m_sizePage; // device pixels; set by SetDialogResource
    CString m_strDocString;
    CString m_strHelpFile;
    unsigned long m_dwHelpContext;
    int m_bRefreshPending; // the next refresh command reloads the controls
    int m_bInitializing;   // notifications of controls are ignored
    // Set by a page's constructor: OnInitDialog removes the tab stops of labels and fits the widths of controls to the
    // page and to the resolution of the screen, as the templates of the library need it. Otherwise a page's controls
    // stay as in its template.
    int m_bFitControls = 0;
    int m_nControls;
    ControlStatus* m_pStatus;
    CWordArray m_IDArray;
    void* m_hDialog;

private:
    friend class CGraphicPropertySheet;
    // Frees the preview graphic, if any; the page creates a new one when its window is created again.
    void DisposePreviewGraphic();
    ControlStatus* FindStatus(unsigned int nID) const;
    void BuildStatusTable();
    void AddPreviewGraphic();
    bool IsIgnored(unsigned int nID) const;
    void OnDroppedList(unsigned int code, HWND combo);
    unsigned long ChangeFlags(unsigned int nID, unsigned int code, HWND control);

    friend CMapWordToOb& PendingWritesOf(CGraphicPropertyPage* page);
    friend class LoadedControls;
    friend class WriteOutcome;
    class WriteOutcome* m_pOutcome = nullptr; // of the write-back in progress
    std::unique_ptr<class LoadedControls> m_pLoaded;
    HWND m_hDropped = nullptr; // the combo whose list is open, or was the last to be
    int m_nDropped = -1;       // what it showed when the list was opened: item and text
    CString m_strDropped;
};
