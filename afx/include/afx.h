// The framework's base: run-time classes, strings, exceptions, buffered files. It includes no window header
// of its own and compiles on this machine as well, where a block of types replaces the system's.
//
//   CString text;
//   text.Format("%d of %d", 3, 10);
//   try { CStdioFile file("missing.txt", CStdioFile::modeRead); }
//   catch (CFileException* e) { ... e->m_cause is fileNotFound ... e->Delete(); }
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
using BOOL = int;
using BYTE = unsigned char;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using LONG = std::int32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using LPSTR = char*;
using LPCSTR = const char*;
#define TRUE 1
#define FALSE 0
#endif

// The format texts of the C++ library, not those of the system's C library.
#if defined(_WIN32)
#define AFX_PRINTF gnu_printf
#else
#define AFX_PRINTF printf
#endif

#if !defined(_WIN32) || defined(AFX_STATIC)
#define AFX_API
#elif defined(AFX_BUILD)
#define AFX_API __declspec(dllexport)
#else
#define AFX_API __declspec(dllimport)
#endif

// The static library afx_base has no string table and no message boxes, on Windows as elsewhere.
#if defined(_WIN32) && !defined(AFX_STATIC)
#define AFX_HAS_WINDOWS
#endif

#if defined(NDEBUG)
#define ASSERT(f) ((void)0)
#else
[[noreturn]] AFX_API void AfxAssertFailed(LPCSTR lpszText, LPCSTR lpszFileName, int nLine);
#define ASSERT(f) ((f) ? (void)0 : AfxAssertFailed(#f, __FILE__, __LINE__))
#endif

// A place in a collection; null before the first and after the last.
struct AFX_POSITION;
typedef AFX_POSITION* POSITION;

class CObject;
class CString;

// ---- Run-time classes

struct AFX_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                  // 0xFFFF: the class is not stored
    CObject* (*m_pfnCreateObject)(); // null: not made by name
    CRuntimeClass* m_pBaseClass;

    // A new object of the class, owned by the caller; null if the class cannot be made this way.
    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

class AFX_API CObject {
public:
    static CRuntimeClass classCObject;
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

protected:
    CObject() = default;

private:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static CRuntimeClass class##class_name;                                                                  \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, pfnNew)                                          \
    CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)),        \
                                                   0xFFFF, pfnNew, RUNTIME_CLASS(base_class_name)};          \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                     \
        return RUNTIME_CLASS(class_name);                                                                    \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, class_name::CreateObject)

// ---- Text

// 8-bit text in the system's code page. A null pointer counts as the empty text. Between GetBuffer and
// ReleaseBuffer the text must only be touched through the pointer.
class AFX_API CString {
public:
    CString();
    CString(const CString& stringSrc);
    CString(CString&& stringSrc) noexcept;
    CString(LPCSTR lpsz);
    CString(LPCSTR lpch, int nLength);
    explicit CString(char ch, int nRepeat = 1);
    ~CString();

    CString& operator=(const CString& stringSrc);
    CString& operator=(CString&& stringSrc) noexcept;
    CString& operator=(LPCSTR lpsz);
    CString& operator=(char ch);
    CString& operator+=(const CString& string);
    CString& operator+=(LPCSTR lpsz);
    CString& operator+=(char ch);

    int GetLength() const { return static_cast<int>(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty();
    char GetAt(int nIndex) const { return m_text[static_cast<std::size_t>(nIndex)]; }
    char operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch);
    operator LPCSTR() const { return m_text.c_str(); }

    // Byte by byte; the sign of the result as with strcmp.
    int Compare(LPCSTR lpsz) const;
    int CompareNoCase(LPCSTR lpsz) const;

    // Parts out of range are cut to the text.
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;

    void MakeUpper();
    void MakeLower();
    void TrimLeft();
    void TrimRight();

    // Index of the first (last) match, -1 if there isn't one.
    int Find(char ch) const;
    int Find(LPCSTR lpszSub) const;
    int ReverseFind(char ch) const;

    void Format(LPCSTR lpszFormat, ...) __attribute__((format(AFX_PRINTF, 2, 3)));
    void FormatV(LPCSTR lpszFormat, va_list args);

    // A buffer for at least nMinBufLength characters and the NUL; it starts with the present text.
    LPSTR GetBuffer(int nMinBufLength);
    LPSTR GetBufferSetLength(int nNewLength);
    // -1: the text ends at its first NUL.
    void ReleaseBuffer(int nNewLength = -1);

#if defined(AFX_HAS_WINDOWS)
    // The string resource of that number, searched along the chain of modules; false leaves the text empty.
    BOOL LoadString(UINT nID) {
        return ReadResource(nID);
    }
#endif

private:
#if defined(AFX_HAS_WINDOWS)
    BOOL ReadResource(UINT nID);
#endif
    std::string m_text;
};

AFX_API CString operator+(const CString& string1, const CString& string2);
AFX_API CString operator+(const CString& string, LPCSTR lpsz);
AFX_API CString operator+(LPCSTR lpsz, const CString& string);
AFX_API CString operator+(const CString& string, char ch);

inline bool operator==(const CString& a, const CString& b) {
    return a.Compare(b) == 0;
}
inline bool operator==(const CString& a, LPCSTR b) {
    return a.Compare(b) == 0;
}
inline bool operator==(LPCSTR a, const CString& b) {
    return b.Compare(a) == 0;
}
inline bool operator!=(const CString& a, const CString& b) {
    return a.Compare(b) != 0;
}
inline bool operator!=(const CString& a, LPCSTR b) {
    return a.Compare(b) != 0;
}
inline bool operator!=(LPCSTR a, const CString& b) {
    return b.Compare(a) != 0;
}
inline bool operator<(const CString& a, const CString& b) {
    return a.Compare(b) < 0;
}

// ---- Exceptions

// Thrown by pointer. Whoever catches one and does not rethrow it calls Delete.
class AFX_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    explicit CException(BOOL bAutoDelete = TRUE);
    ~CException() override;
    void Delete();

#if defined(AFX_HAS_WINDOWS)
    // Text for a person, with its NUL cut to nMaxError bytes; false and an empty text if the exception has
    // none.
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr);
    // Shows that text in a message box, or the string nMessageID (0: the framework's "internal error")
    // without one.
    int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);
#endif

private:
    BOOL m_bAutoDelete;
};

// The user's action cannot go on, and the user was informed.
class AFX_API CUserException : public CException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    ~CUserException() override;
};

class AFX_API CNotSupportedException : public CException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    ~CNotSupportedException() override;
#if defined(AFX_HAS_WINDOWS)
    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) override;
#endif
};

// A resource, or a window or GDI object made from one, is not available.
class AFX_API CResourceException : public CException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
    ~CResourceException() override;
#if defined(AFX_HAS_WINDOWS)
    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) override;
#endif
};

class AFX_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none = 0,
        genericException = 1,
        fileNotFound = 2,
        badPath = 3,
        tooManyOpenFiles = 4,
        accessDenied = 5,
        badSeek = 9,
        hardIO = 10,
        diskFull = 13,
    };

    explicit CFileException(int cause = none, LONG lOsError = 0, LPCSTR lpszFileName = nullptr);
    ~CFileException() override;
    // The cause that fits a value of errno.
    static int ErrnoToException(int nErrno);

    int m_cause;
    LONG m_lOsError; // errno of the failed call
    CString m_strFileName;

#if defined(AFX_HAS_WINDOWS)
    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) override;
#endif
};

[[noreturn]] AFX_API void AfxThrowUserException();
[[noreturn]] AFX_API void AfxThrowNotSupportedException();
[[noreturn]] AFX_API void AfxThrowResourceException();
[[noreturn]] AFX_API void AfxThrowFileException(int cause, LONG lOsError = 0, LPCSTR lpszFileName = nullptr);

// ---- Buffered files

// A file of the C library. Text unless typeBinary is given. Failures of reading, writing and seeking are
// thrown as CFileException; the destructor closes without reporting failures.
class AFX_API CStdioFile : public CObject {
    DECLARE_DYNAMIC(CStdioFile)
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        modeCreate = 0x1000,     // makes the file, empties an existing one
        modeNoTruncate = 0x2000, // with modeCreate: an existing one keeps its content
        typeText = 0x4000,
        typeBinary = 0x8000,
    };
    enum SeekPosition : UINT { begin = 0, current = 1, end = 2 };

    CStdioFile();
    // Takes an open stream over: it is closed by Close or the destructor.
    explicit CStdioFile(FILE* pOpenStream);
    // Throws a CFileException if the file cannot be opened.
    CStdioFile(LPCSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    // False if the file cannot be opened; the reason goes to pError if given.
    BOOL Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    void Close();

    UINT Read(void* lpBuf, UINT nCount);
    void Write(const void* lpBuf, UINT nCount);
    // One line without its line feed; false at the end of the file.
    BOOL ReadString(CString& rString);
    virtual void WriteString(LPCSTR lpsz);

    // The new position from the start of the file, in bytes.
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    ULONGLONG GetPosition() const;
    void Flush();

    FILE* m_pStream; // null: no file is open

private:
    [[noreturn]] void ThrowErrno(int nFallback) const;
    CString m_strFileName;
};
