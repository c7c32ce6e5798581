// The exchange of values between variables and controls: every DDX_ and DDV_ function.
//
// The functions have the framework's names and one more argument, so that the same code serves a page that is saved and
// a preview that follows every key:
//
//   DDX_Text(1, pDX, 104, m_dScale);          // an invalid text: message box, focus to the control, exception
//   if (DDX_Text(0, pDX, 104, scale)) ...     // an invalid text: nothing is shown, the result is 0
//
// For all of them:
//   bReport  non-zero: a failure is shown where the function has a message, and leaves by CDataExchange::Fail, which
//   does
//            not return. Zero: a failure shows nothing and returns 0.
//   pDX      m_bSaveAndValidate non-zero carries the control into the variable, zero the variable into the control.
//   result   1: done, or nothing to do. 0: failed. Unless it says otherwise, the variable is then as before.
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
