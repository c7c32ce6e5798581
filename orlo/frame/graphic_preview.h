// The preview window of a sheet: draws the active page's preview graphic with the host's own drawing code on the
// application's background. An exception thrown by the host during drawing is reported by the framework, once per
// window; the rest of the background stays visible.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/viewport.h"

class CGraphicPreview : public CWnd {
public:
    ORLO_API static CRuntimeClass classCGraphicPreview;
    CRuntimeClass* GetRuntimeClass() const override;

    CGraphicPreview();
    ~CGraphicPreview() override;

    int Create(const RECT& rect, CWnd* pParentWnd, unsigned int nID);

protected:
    void OnPaint();
    LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);

    ORLO_API static const AFX_MSGMAP messageMap;
    const AFX_MSGMAP* GetMessageMap() const override;

private:
    static const AFX_MSGMAP_ENTRY* GetMessageEntries();

    ViewportStruct* m_pViewport; // set at every paint; if null, the pane is white
};
