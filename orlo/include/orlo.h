// The library's whole public interface: every exported class and function is reachable from here.
//
//   frame/entry.h opens a sheet over a selection; frame/graphic_property_page.h is the base of a host's own pages, which
//   bind properties by binding/ddp.h and values by exchange/ddx.h. controls/ has the combos and lists, propset/ and
//   summary/ the property sets of documents, wizard/ a sheet that walks its pages. host/host.h is what the library asks of
//   its host.
#pragma once

#include "orlo/binding/ddp.h"
#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "orlo/controls/check_list_box.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/color_order.h"
#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/enter_edit.h"
#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/controls/layer_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/controls/list_control.h"
#include "orlo/controls/style_name_control.h"
#include "orlo/controls/text_height.h"
#include "orlo/exchange/ddx.h"
#include "orlo/frame/entry.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/orlo_property_page.h"
#include "orlo/frame/orlo_property_sheet.h"
#include "orlo/host/host.h"
#include "orlo/propset/property.h"
#include "orlo/propset/property_section.h"
#include "orlo/propset/property_set.h"
#include "orlo/propset/rc_file.h"
#include "orlo/summary/ole_summary.h"
#include "orlo/summary/summary_info.h"
#include "orlo/summary/thumbnail.h"
#include "orlo/wizard/wizard_sheet.h"
