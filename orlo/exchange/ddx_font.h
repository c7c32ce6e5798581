// Exchange of font values: style, height and effects of a text. See ddx.h for the convention.
//
// A text style value is two words of bits: pStyle[0] is the mask of the bits in which the selection differs, pStyle[1]
// the values. A control that has been set takes its bits out of the mask; one that still shows nothing, or the third
// state, changes neither word:
//
//   kTextItalic, kTextBold   font style: 0 Regular, 1 Italic, 2 Bold, 3 Bold Italic
//   kTextStrikethrough        check box 103
//   kTextHidden               104
//   kTextAllCaps              105
//   kTextUnderline            106
//   kTextBox                  107
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// The two lowest bits as the selection of a combo. Loading fills the combo, if nIDC is a style combo of
// controls/font_list.h. Cannot fail.
ORLO_API int DDX_CBFontStyle(int bReport, CDataExchange* pDX, unsigned int nIDC, unsigned short* pStyle);

// A height in a CFontSizeControl that knows its drawing. Saving a text that is not a height gives _HUGE and 1; loading
// _HUGE leaves the control unchanged, and a height that is not in the list is added. Fails without such a control, and
// if the height cannot be written.
ORLO_API int DDX_CBFontSize(int bReport, CDataExchange* pDX, unsigned int nIDC, double& size);

// The five effects in the three-state check boxes 103 to 107. The third state on an effect in which the texts agree
// counts as off, and is taken out of the box. Cannot fail.
ORLO_API int DDX_ChkBoxEffects(int bReport, CDataExchange* pDX, unsigned short* pStyle);
