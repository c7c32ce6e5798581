// The preview pane of a sheet: draws the active page's preview graphic with the host's own drawing code, on the
// application's background. What the host throws while it draws is the framework's to report, once
// for each window; where it breaks off, the background stays.
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

    ViewportStruct* m_pViewport; // set anew in every paint; null: the pane stays white
};
