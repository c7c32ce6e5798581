// Data exchange of font properties: style, height and effects of a text. See ddx.h for the convention.
//
// A text style consists of two words of bits: pStyle[0] is the mask of the bits that differ in the selection, pStyle[1]
// has their values. A control that shows a value clears its bits in the mask; a control that shows nothing, or the
// indeterminate state, changes neither word:
//
//   kTextItalic, kTextBold   font style: 0 Regular, 1 Italic, 2 Bold, 3 Bold Italic
//   kTextStrikethrough       check box 103
//   kTextHidden              104
//   kTextAllCaps             105
//   kTextUnderline           106
//   kTextBox                 107
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Exchanges the two lowest bits with the selection of a combo box. Loading fills the combo box if nIDC is a style combo
// box of controls/font_list.h. Cannot fail.
ORLO_API int DDX_CBFontStyle(int bReport, CDataExchange* pDX, unsigned int nIDC, unsigned short* pStyle);

// Exchanges a height with a CFontSizeControl that has a drawing. Saving text that is not a height sets _HUGE and
// returns 1. Loading _HUGE leaves the control unchanged; a height that is not in the list is added. Fails if the
// control is missing or the height cannot be formatted.
ORLO_API int DDX_CBFontSize(int bReport, CDataExchange* pDX, unsigned int nIDC, double& size);

// Exchanges the five effects with the three-state check boxes 103 to 107. If the box of an effect that all texts have,
// or that none has, is indeterminate, the effect is turned off and the box cleared. Cannot fail.
ORLO_API int DDX_ChkBoxEffects(int bReport, CDataExchange* pDX, unsigned short* pStyle);
