// Shows the name of the selected style beside its list.

#include "orlo/pages/style_name.h"

#include <cstring>

void ShowStyleName(HWND page, int nID, const char* name, char (&shown)[kStyleNameSize]) {
    char cut[kStyleNameSize];
    ::lstrcpynA(cut, name, sizeof cut);
    if (std::strcmp(cut, shown) == 0) return;
    std::memcpy(shown, cut, sizeof shown);
    ::SetDlgItemTextA(page, nID, shown);
}
