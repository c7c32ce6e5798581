// The public C++ interface of the library: includes every exported class and function.
//
//   entry/entry.h                  opens a sheet for a selection
//   frame/graphic_property_page.h  base class of a host's own pages
//   exchange/ddp.h, ddx.h          data exchange between properties, members and controls of a page
//   pages/                         the library's own pages
//   controls/                      combo boxes and list boxes of styles, colors, layers and fonts
//   propset/, summary/             OLE property sets and the summaries of documents
//   wizard/                        a wizard sheet
//   host/host.h                    the functions that the host's drawing database implements
#pragma once

#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "orlo/controls/check_list_box.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/color_order.h"
#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_font.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_kind.h"
#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/controls/layer_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/controls/list_control.h"
#include "orlo/controls/style_control.h"
#include "orlo/controls/style_name_control.h"
#include "orlo/entry/entry.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/orlo_property_page.h"
#include "orlo/frame/orlo_property_sheet.h"
#include "orlo/frame/sheet_pane.h"
#include "orlo/host/host.h"
#include "orlo/pages/brush_page.h"
#include "orlo/pages/field_page.h"
#include "orlo/pages/field_row.h"
#include "orlo/pages/general_page.h"
#include "orlo/pages/line_page.h"
#include "orlo/pages/text_page.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/formats.h"
#include "orlo/propset/inspect/set_edit.h"
#include "orlo/propset/property.h"
#include "orlo/propset/property_section.h"
#include "orlo/propset/property_set.h"
#include "orlo/propset/rc_file.h"
#include "orlo/propset/tokens.h"
#include "orlo/propset/value_text.h"
#include "orlo/summary/compound_file.h"
#include "orlo/summary/dib_drawing.h"
#include "orlo/summary/edited_document.h"
#include "orlo/summary/ole_summary.h"
#include "orlo/summary/summary_info.h"
#include "orlo/summary/thumbnail.h"
#include "orlo/wizard/wizard_sheet.h"
