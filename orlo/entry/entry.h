// The entry points of the library:
//
//   PropPageInit();                                                       // once
//   CGraphicPropertySheet* sheet =
//       InitGraphicPropertySheet(frame, regenMethods, drawing, selection, kAllGraphics);
//   for (each graphic of the selection) AddGraphicPropertyPage(regenMethods, graphic, sheet);
//   int code = sheet->DoModal();                                          // 1 after OK, IDCANCEL, or a page's end code
//   delete sheet;                                                         // with its pages and previews
//
// All on the user-interface thread. Drawing, selection and regen methods stay the host's and outlive the sheet.
//
// The library may be unloaded (FreeLibrary) when its last sheet and its last control are gone, and loaded again. Of two
// copies in one process each has its own controls in its own pages; templates of other modules that name "QXComboBox" or
// "QXListBox" get the controls of the copy that was loaded first, and cannot be used once that copy is gone.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

class CGraphicPropertySheet;

// Hooks the library up to the framework, so that its resources are found from outside too. Always 1.
extern "C" ORLO_API int PropPageInit();

// A sheet with its General page over the members of pGraphics that pass dwGraphicFlags (see GraphicFirst). The caller runs
// and deletes it. pGraphics may be null: the sheet then edits nothing. Null without memory.
extern "C" ORLO_API CGraphicPropertySheet* InitGraphicPropertySheet(CWnd* pParentWnd, void* pRegenMethods,
                                                                    DrawingStruct* pDrawing, void* pGraphics,
                                                                    unsigned long dwGraphicFlags);

// Adds the pages that this graphic needs and the sheet lacks, then lets its regen method add its own.
// 0, or what RegenMethodGetPropPage returned; 0 also without memory: the sheet keeps the pages that it has.
extern "C" ORLO_API int AddGraphicPropertyPage(void* pRegenMethods, void* pGraphic,
                                               CGraphicPropertySheet* pSheet);
