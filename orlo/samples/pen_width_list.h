// The customary values in a section of the host's configuration file, as "number unit" texts.
//
//   [PenWidths]
//   mm=0.18, 0.25, 0.35      numbers in the unit named by the key; the decimal mark is always a point
//   in=*mm                   an alias: uses the list and the unit of another key
#pragma once

#include <afx.h>

#include "orlo/host/records.h"

class CPenWidthList {
public:
    CPenWidthList();

    // Return the first and each further item, or null at the end, if there is no list, or if aliases are circular. The
    // key is the unit named by the variable of the units table. Items that are too long are skipped. The text is owned
    // by this object and valid until the next call.
    const char* First(AppStruct* application, TableStruct* units, const char* section, unsigned int unitVariable);
    const char* Next();

private:
    bool ReadEntry(const char* path, const char* section);
    const char* NextItem(char* text);

    CString m_strBuffer;
    char* m_pszCursor; // the current token; null before First and at the end
    char m_szUnit[32];
    char m_szItem[48];
};
