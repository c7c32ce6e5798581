// The warning about a text that is ignored.

#include "orlo/pages/ignored_text.h"

void WarnOfIgnoredText(CGraphicPropertyPage& page, CDataExchange* pDX, int nID) {
    if (pDX->m_bSaveAndValidate && page.GetControlStatus(static_cast<unsigned int>(nID)))
        ::MessageBeep(MB_ICONWARNING);
}
