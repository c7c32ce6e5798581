// CRCFile: writes binary data as items of a raw-data block of a resource script. The caller writes the statement that
// contains them.
//
//   CRCFile rc("summary.rc", CStdioFile::modeCreate | CStdioFile::modeReadWrite);
//   rc.Write("1 RCDATA\nBEGIN", 14);
//   section.WriteToRC(&rc);                               // words as 0x0054, texts in quotes, separated by commas
//   rc.WriteString("END")                                 // wrong: writes another item, with a comma before it
//   rc.CStdioFile::WriteString("\nEND\n2 RCDATA\nBEGIN"); // right
//   rc.StartBlock();                                      // otherwise the next item would begin with a comma
//   other.WriteToRC(&rc);
//   rc.CStdioFile::WriteString("\nEND\n");
//
// A text is written up to its first NUL, although its length may be greater, in which case the block is shorter than it
// declares. Other programs create such texts, padded to a round length; after PrintWholeTexts they are written
// completely.
//
// Bytes from 0x80 on are written unchanged; compile the script with their code page.
#pragma once

#include <afx.h>

#include "orlo/export.h"

// On failure the functions throw the CFileException of CStdioFile.
class ORLO_API CRCFile : public CStdioFile {
public:
    CRCFile();
    explicit CRCFile(FILE* pOpenStream);
    CRCFile(const char* pszFileName, UINT nOpenFlags);
    ~CRCFile() override;

    // Ends the current block; the next item begins another.
    void StartBlock();
    // Makes texts that continue after their first NUL be written completely, as further items.
    void PrintWholeTexts();
    // Makes the next item begin a new line.
    void NewLine();
    // Writes the separator before an item: a comma, or the end of the line and the indentation of the next.
    void Format();

    // Writes an item unchanged.
    void WriteString(const char* psz) override;
    // Writes a quoted text of at most cb bytes, up to and including its first NUL. Control characters, including line
    // feeds and tabs, are written as "\x09".
    void WriteCString(const char* psz, DWORD cb);
    void WriteByte(BYTE b);
    void WriteWord(WORD w);
    // Writes two words, the low word first.
    void WriteDWord(DWORD dw);
    // Writes words, and the last of an odd number of bytes as text.
    void WriteBytes(BYTE* p, int n);
    void WriteNULByte();

private:
    friend class CProperty;
    friend class CPropertySection;

    int m_nColumn;
    int m_bNeedComma;
    bool m_bWholeTexts = false;
};
