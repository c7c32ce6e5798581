// TellPassedOver.

#include "orlo/pages/passed_over.h"

void TellPassedOver(CGraphicPropertyPage& page, CDataExchange* pDX, int nID) {
    if (pDX->m_bSaveAndValidate && page.GetControlStatus(static_cast<unsigned int>(nID)))
        ::MessageBeep(MB_ICONWARNING);
}
