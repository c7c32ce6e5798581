// Runs modal sheets of the system and of the library, and calls a function once the sheet is open.
#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>

#include "orlo/frame/graphic_property_sheet.h"

// Gets its posted message as soon as a modal loop runs, and then acts on the open sheet.
class LoopWatch : public CWnd {
public:
    LoopWatch();
    void Await(std::function<void(HWND sheet)> act);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::function<void(HWND)> m_act;
};

// Paints everything that is invalid in the sheet.
void PaintSheet(HWND sheet);

// Runs the system's sheet with the first pages of system_pages.rc and cancels it after act.
void RunSystemSheet(LoopWatch& watch, int pages, const std::function<void(HWND sheet)>& act);
void ShowSystemPage(HWND sheet, int page);

// Creates the library's sheet for a selection with all its pages. It is canceled after act.
std::unique_ptr<CGraphicPropertySheet> NewSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* selection);
void RunSheet(LoopWatch& watch, CGraphicPropertySheet& sheet, const std::function<void(HWND sheet)>& act);
