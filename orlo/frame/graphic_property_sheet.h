// The tabbed dialog for the selected graphics of a drawing. Contains the data shared by its pages, owns the preview
// group and the preview window, and places buttons and preview in a column beside the page.
//
// Created by InitGraphicPropertySheet (orlo/entry/entry.h). The host runs and deletes the sheet and keeps ownership of
// drawing and selection. DoModal returns 1 after OK, IDCANCEL after Cancel, or a code set by a page.
#pragma once

#include <functional>
#include <utility>

#include "orlo/frame/graphic_preview.h"
#include "orlo/frame/orlo_property_sheet.h"
#include "orlo/host/graphic.h"

class CGraphicPropertyPage;

// The objects that the sheet was opened for, all owned by the host.
struct GraphicSheetData {
    void* pRegenMethods;
    DrawingStruct* pDrawing;
    void* pGraphics;              // the group whose members are selected
    unsigned long dwGraphicFlags; // filter for its members; bit 2: the General page has no style part
};

class CGraphicPropertySheet : public COrloPropertySheet {
public:
    ORLO_API static CRuntimeClass classCGraphicPropertySheet;
    ORLO_API CRuntimeClass* GetRuntimeClass() const override;

    // nIDCaption: identifier of a string of the library.
    CGraphicPropertySheet(unsigned int nIDCaption, void* pRegenMethods, DrawingStruct* pDrawing, void* pGraphics,
                          unsigned long dwGraphicFlags, CWnd* pParentWnd, unsigned int iSelectPage);
    ~CGraphicPropertySheet() override;

    // Return null or 0 if there is no record.
    ORLO_API DrawingStruct* GetDrawing();
    ORLO_API unsigned long GetGraphicFlags();
    void* GetGraphics();
    void* GetRegenMethods();

    GraphicStruct* GetPreviewGroup();
    // Returns the preview graphic of the active page, or null.
    GraphicStruct* GetPreviewGraphic();

    // Invalidates the preview. If bNow is set, also repaints it before returning.
    ORLO_API void UpdatePreview(int bNow);
    ORLO_API void UpdateDesc(int);
    // Draws the active page's preview graphic into rect (device pixels).
    ORLO_API void DrawPreview(CDC* pDC, void* pViewport, CRect& rect);

    // Makes OK end the dialog with this code. If it is called before OK, there is no data exchange.
    void EndWithCode(int nEndCode);

    // Called by a page when something has changed. Bit 0: a control became dirty; bit 1: an edit of a dirty control
    // ended. Returns 1 if the active page has a preview graphic.
    virtual int OnStatusChange(unsigned long dwFlags);
    // Sizes the sheet to the active page.
    virtual void RecalcLayout();

    // Called after a page has written, with the number of graphics that accepted a value and the number that rejected
    // one.
    using Written = std::function<void(int changed, int rejected)>;
    void SetWritten(Written written) { m_written = std::move(written); }
    bool HasWrittenCallback() const { return m_written != nullptr; }
    void OnWritten(int changed, int rejected) const {
        if (m_written) m_written(changed, rejected);
    }

protected:
    ORLO_API int CreatePreviewRect();
    ORLO_API void DeletePages();

    int OnCreate(CREATESTRUCTA* lpCreateStruct);
    void OnPaint();
    void OnOK();

    ORLO_API static const AFX_MSGMAP messageMap;
    ORLO_API const AFX_MSGMAP* GetMessageMap() const override;

private:
    friend class PageState;
    static const AFX_MSGMAP_ENTRY* GetMessageEntries();

    CGraphicPropertyPage* GetActiveGraphicPage();
    void ResetEarlierRun();
    CSize PageSize(const CPropertyPage& active, CSize beside) const;
    int ButtonColumnWidth(int (&widths)[3]);
    void PlaceButtons(int left, int top, const int (&widths)[3]);

    GraphicStruct* m_pPreviewGroup = nullptr;
    int m_cxPreview; // size of the preview pane, in device pixels
    int m_cyPreview;
    CGraphicPreview m_wndPreview;
    bool m_defersPreview = false; // UpdatePreview does nothing
    int m_bEndWithCode = 0;
    int m_nEndCode = 0;
    Written m_written;
};
