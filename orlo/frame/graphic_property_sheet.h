// The tabbed dialog over the selected graphics of a drawing: holds what all its pages share, owns the preview group and
// the preview window, and lays itself out with the page at the left and buttons and preview in a column beside it.
//
// Made by InitGraphicPropertySheet (orlo/entry/entry.h); the host runs and deletes it. Drawing and selection stay the
// host's. DoModal returns 1 after OK, IDCANCEL after Cancel, or a code that a page has chosen.
#pragma once

#include <cstdint>

#include "orlo/frame/graphic_preview.h"
#include "orlo/frame/orlo_property_sheet.h"
#include "orlo/host/graphic.h"

class CGraphicPropertyPage;

// What the sheet was opened over; the host's, all of it.
struct GraphicSheetData {
    void* pRegenMethods;
    DrawingStruct* pDrawing;
    void* pGraphics;              // its members are the selection
    unsigned long dwGraphicFlags; // filter of the walk over them; bit 2: the General page has no style part
};

class CGraphicPropertySheet : public COrloPropertySheet {
public:
    ORLO_API static CRuntimeClass classCGraphicPropertySheet;
    ORLO_API CRuntimeClass* GetRuntimeClass() const override;

    // nIDCaption: a text of the library.
    CGraphicPropertySheet(unsigned int nIDCaption, void* pRegenMethods, DrawingStruct* pDrawing, void* pGraphics,
                          unsigned long dwGraphicFlags, CWnd* pParentWnd, unsigned int iSelectPage);
    ~CGraphicPropertySheet() override;

    // Null, or 0, without a record.
    ORLO_API DrawingStruct* GetDrawing();
    ORLO_API unsigned long GetGraphicFlags();
    void* GetGraphics();
    void* GetRegenMethods();

    GraphicStruct* GetPreviewGroup();
    // Of the active page, or null.
    GraphicStruct* GetPreviewGraphic();

    // Marks the preview for repainting; bNow repaints before it returns.
    ORLO_API void UpdatePreview(int bNow);
    ORLO_API void UpdateDesc(int);
    // Draws the active page's preview graphic into rect (device pixels).
    ORLO_API void DrawPreview(CDC* pDC, void* pViewport, CRect& rect);

    // OK ends the dialog with this code, without an exchange if it is set before OK.
    void EndWithCode(int nEndCode);

    // A page reports that something changed. Bit 0: a control became dirty; bit 1: a dirty control ended an edit.
    // 1 if the active page has a preview graphic.
    virtual int OnStatusChange(unsigned long dwFlags);
    // Sizes the sheet to the active page.
    virtual void RecalcLayout();

protected:
    ORLO_API int CreatePreviewRect();
    ORLO_API void DeletePages();

    int OnCreate(CREATESTRUCTA* lpCreateStruct);
    void OnPaint();
    void OnOK();

    ORLO_API static const AFX_MSGMAP messageMap;
    ORLO_API const AFX_MSGMAP* GetMessageMap() const override;

private:
    static const AFX_MSGMAP_ENTRY* GetMessageEntries();
    static constexpr uint32_t kColumnOfButtons = 4; // preview pane, buttons beside the page

    CGraphicPropertyPage* GetActiveGraphicPage();
    void ForgetEarlierRun();
    int ButtonColumnWidth(int (&widths)[3]);
    void PlaceButtons(int left, int top, const int (&widths)[3]);

    uint32_t m_dwSheetStyle = kColumnOfButtons;
    GraphicStruct* m_pPreviewGroup = nullptr;
    int m_cxPreview = 100; // device pixels
    int m_cyPreview = 100;
    CGraphicPreview m_wndPreview;
    int m_bEndWithCode = 0;
    int m_nEndCode = 0;
};
