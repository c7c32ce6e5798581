// Entry points of the library for C++ hosts:
//
//   PropPageInit();                                                       // once
//   CGraphicPropertySheet* sheet =
//       InitGraphicPropertySheet(frame, regenMethods, drawing, selection, kAllGraphics);
//   for (each graphic of the selection) AddGraphicPropertyPage(regenMethods, graphic, sheet);
//   int code = sheet->DoModal();                                          // IDOK, IDCANCEL or a StyleEndCode
//   delete sheet;                                                         // including its pages and previews
//
// All functions must be called on the user-interface thread. Drawing, selection and regen methods belong to the host
// and must outlive the sheet.
//
// The library can be unloaded (FreeLibrary) after its last sheet and its last control have been destroyed, and loaded
// again. Two copies in one process use their own controls in their own pages. Dialog templates of other modules that
// name the classes "QXComboBox" or "QXListBox" get the controls of the copy that was loaded first, until that copy is
// unloaded.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

class CGraphicPropertySheet;

// Registers the library's resources with the framework, so that other modules find them. Call it once, before the first
// sheet. Returns 1, or 0 if memory runs out; a later call then tries again.
extern "C" ORLO_API int PropPageInit();

// Creates a sheet with the General page. The caller runs it with DoModal and deletes it. Returns null if memory runs
// out.
//
//   pParentWnd      owner of the dialog; may be null
//   pRegenMethods   passed to RegenMethodGetPropPage; may be null
//   pDrawing        the drawing; must remain the host's current drawing until the sheet is deleted
//   pGraphics       a GraphicStruct whose members are edited; if null, the sheet edits nothing
//   dwGraphicFlags  which members are edited: kAllGraphics or another filter of GraphicFirst; without kNoStylePart the
//                   General page has a style part
extern "C" ORLO_API CGraphicPropertySheet* InitGraphicPropertySheet(CWnd* pParentWnd, void* pRegenMethods,
                                                                    DrawingStruct* pDrawing, void* pGraphics,
                                                                    unsigned long dwGraphicFlags);

// Adds the pages for this graphic's type that the sheet does not have yet, then the pages of its regen method. Returns
// the result of RegenMethodGetPropPage, or 0 if the graphic has no regen method. Also returns 0 if memory runs out;
// pages that were already added remain.
extern "C" ORLO_API int AddGraphicPropertyPage(void* pRegenMethods, void* pGraphic, CGraphicPropertySheet* pSheet);
