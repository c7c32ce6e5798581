// The library's door to its host:
//
//   PropPageInit();                                                       // once
//   CGraphicPropertySheet* sheet =
//       InitGraphicPropertySheet(frame, regenMethods, drawing, selection, 0xFFFFFFFF);
//   for (each graphic of the selection) AddGraphicPropertyPage(regenMethods, graphic, sheet);
//   int code = sheet->DoModal();                                          // 1 after OK, IDCANCEL, or a page's end code
//   delete sheet;                                                         // with its pages and previews
//
// All on the user-interface thread. Drawing, selection and regen methods stay the host's and outlive the sheet.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

class CGraphicPropertySheet;

// Hooks the library up to the framework, so that its dialogs and texts are found. Always 1.
extern "C" ORLO_API int PropPageInit();

// A sheet with its General page over the members of pGraphics that pass dwGraphicFlags (see GraphicFirst). The caller runs
// and deletes it. pGraphics may be null: the sheet then edits nothing. Null if there is no memory.
extern "C" ORLO_API CGraphicPropertySheet* InitGraphicPropertySheet(CWnd* pParentWnd, void* pRegenMethods,
                                                                    DrawingStruct* pDrawing, void* pGraphics,
                                                                    unsigned long dwGraphicFlags);

// Adds the pages that this graphic calls for and the sheet has not got yet, then lets its regen method add its own.
// 0, or what RegenMethodGetPropPage gave.
extern "C" ORLO_API int AddGraphicPropertyPage(void* pRegenMethods, void* pGraphic, CGraphicPropertySheet* pSheet);
