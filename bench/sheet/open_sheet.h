// Runs modal sheets, the system's own and the library's, with something to be done as soon as each is open.
#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>

#include "orlo/frame/graphic_property_sheet.h"

// Gets its posted message as soon as a modal loop runs, and acts on the sheet that is open then.
class LoopWatch : public CWnd {
public:
    LoopWatch();
    void Await(std::function<void(HWND sheet)> act);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::function<void(HWND)> m_act;
};

// All that waits for painting in the sheet is painted before it returns.
void PaintSheet(HWND sheet);

// The system's sheet with the first pages of system_pages.rc. It is cancelled after act.
void RunSystemSheet(LoopWatch& watch, int pages, const std::function<void(HWND sheet)>& act);
void ShowSystemPage(HWND sheet, int page);

// The library's sheet over a selection, with the pages that belong to it. It is cancelled after act.
std::unique_ptr<CGraphicPropertySheet> NewSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* selection);
void RunSheet(LoopWatch& watch, CGraphicPropertySheet& sheet, const std::function<void(HWND sheet)>& act);
