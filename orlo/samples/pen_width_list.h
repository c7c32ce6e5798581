// The customary values of a section of the host's configuration file, as "number unit" texts.
//
//   [PenWidths]
//   mm=0.18, 0.25, 0.35      numbers in the unit that the key names; the decimal mark of the file is always a point
//   in=*mm                   an alias: the list, and the unit, of another key
#pragma once

#include <afx.h>

#include "orlo/host/records.h"

class CPenWidthList {
public:
    CPenWidthList();

    // The first and each further item, or null: at the end, without a list, or in a circle of aliases. The key is the
    // unit that the variable of the units table names. An item longer than the list can hold is passed over. The text
    // is this object's and lasts until the next call.
    const char* First(AppStruct* application, TableStruct* units, const char* section, unsigned int unitVariable);
    const char* Next();

private:
    bool ReadEntry(const char* path, const char* section);
    const char* NextItem(char* text);

    CString m_strBuffer;
    char* m_pszCursor; // the token now being read; null before First and at the end
    char m_szUnit[32];
    char m_szItem[48];
};
