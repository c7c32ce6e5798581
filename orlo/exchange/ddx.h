// Data exchange between variables and controls: all DDX_ and DDV_ functions.
//
// The functions have the framework's names and an additional first parameter, so that the same code can save a page and
// update a preview at every keystroke:
//
//   DDX_Text(1, pDX, 104, m_dScale);          // invalid text: message box, focus to the control, exception
//   if (DDX_Text(0, pDX, 104, scale)) ...     // invalid text: shows nothing and returns 0
//
// Parameters and result of all functions:
//   bReport  nonzero: on failure, shows the function's message, if any, and calls CDataExchange::Fail, which does not
//            return. Zero: on failure, shows nothing and returns 0.
//   pDX      m_bSaveAndValidate nonzero transfers from the control to the variable, zero from the variable to the
//            control.
//   result   1: done, or nothing to do. 0: failed. The variable is then unchanged unless documented otherwise.
#pragma once

#include "orlo/exchange/ddv.h"
#include "orlo/exchange/ddx_button.h"
#include "orlo/exchange/ddx_control.h"
#include "orlo/exchange/ddx_font.h"
#include "orlo/exchange/ddx_list.h"
#include "orlo/exchange/ddx_scale.h"
#include "orlo/exchange/ddx_table.h"
#include "orlo/exchange/ddx_text.h"
#include "orlo/exchange/ddx_unit_text.h"
#include "orlo/exchange/ddx_variable.h"
