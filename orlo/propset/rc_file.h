// CRCFile: prints binary data as the items of a raw-data block of a resource script. The statement around
// them is the caller's.
//
//   CRCFile rc("summary.rc", CStdioFile::modeCreate | CStdioFile::modeReadWrite);
//   rc.Write("1 RCDATA\nBEGIN", 14);
//   section.WriteToRC(&rc);                // words as 0x0054, texts in quotes, a comma between all
//   rc.WriteString("END")                  // wrong: that is another item, with a comma before it
//   rc.CStdioFile::WriteString("\nEND\n2 RCDATA\nBEGIN"); // right
//   rc.StartBlock();                       // else the next item would begin with a comma
//   other.WriteToRC(&rc);
//   rc.CStdioFile::WriteString("\nEND\n");
//
// A text is printed up to its first NUL, although the length ahead of it counts what may follow: the block
// is then shorter than it says. Files of other programs have such texts, padded to a round length; PrintWholeTexts
// has them printed to the end of their count.
//
// Bytes from 0x80 upward are printed as they are; compile the script with the code page that they are in.
#pragma once

#include <afx.h>

#include "orlo/export.h"

// Failures of the file are the CFileException of CStdioFile.
class ORLO_API CRCFile : public CStdioFile {
public:
    CRCFile();
    explicit CRCFile(FILE* pOpenStream);
    CRCFile(const char* pszFileName, UINT nOpenFlags);
    ~CRCFile() override;

    // The items so far were a block of their own: the next one begins another.
    void StartBlock();
    // From now on texts are printed to the end of their count, as further items after their first NUL.
    void PrintWholeTexts();
    // The next item begins a new line.
    void NewLine();
    // The separator that is due before an item: a comma, or the end of the line and the indent of the next.
    void Format();

    // An item, as given.
    void WriteString(const char* psz) override;
    // A quoted text of at most cb bytes; a NUL ends it, and is its last character. Characters below 0x20 are
    // written as "\x09" is, line feeds and tabs too: raw ones break the line of the script.
    void WriteCString(const char* psz, DWORD cb);
    void WriteByte(BYTE b);
    void WriteWord(WORD w);
    // As two words, the low one first.
    void WriteDWord(DWORD dw);
    // As words, and the last byte of an odd number as a text.
    void WriteBytes(BYTE* p, int n);
    void WriteNULByte();

private:
    friend class CProperty;
    friend class CPropertySection;

    int m_nColumn;
    int m_bNeedComma;
    bool m_bWholeTexts = false;
};
