// The base of the framework: run-time classes, strings, exceptions, buffered files. Requires no windows and also
// compiles on Linux, where the types below replace those of windows.h.
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

// Format strings are those of the C++ library, not of the system's C library.
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

// The static library afx_base has no string table and no message boxes, on any system.
#if defined(_WIN32) && !defined(AFX_STATIC)
#define AFX_HAS_WINDOWS
#endif

#if defined(NDEBUG)
#define ASSERT(f) ((void)0)
#else
[[noreturn]] AFX_API void AfxAssertFailed(LPCSTR lpszText, LPCSTR lpszFileName, int nLine);
#define ASSERT(f) ((f) ? (void)0 : AfxAssertFailed(#f, __FILE__, __LINE__))
#endif

// A position in a collection. Null is before the first and after the last element.
struct AFX_POSITION;
typedef AFX_POSITION* POSITION;

class CObject;
class CString;

// ---- Run-time classes

struct AFX_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                  // 0xFFFF: objects of the class cannot be serialized
    CObject* (*m_pfnCreateObject)(); // null: CreateObject is not supported
    CRuntimeClass* m_pBaseClass;

    // Returns a new object of the class, owned by the caller, or null if the class does not support it.
    CObject* CreateObject();
    // Returns true if the class is pBaseClass or is derived from it.
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

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, pfnNew)                                                    \
    CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), 0xFFFF, pfnNew,  \
                                                   RUNTIME_CLASS(base_class_name)};                                    \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                               \
        return RUNTIME_CLASS(class_name);                                                                              \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject() {                                                                              \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, class_name::CreateObject)

// ---- Strings

// An 8-bit string in the system's code page. A null pointer is an empty string. Between GetBuffer and ReleaseBuffer the
// string must only be accessed through the returned pointer.
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

    // Compare the bytes. The sign of the result is that of strcmp.
    int Compare(LPCSTR lpsz) const;
    int CompareNoCase(LPCSTR lpsz) const;

    // Return a part of the string. A range that exceeds the string is clipped.
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;

    void MakeUpper();
    void MakeLower();
    void TrimLeft();
    void TrimRight();

    // Return the index of the first (ReverseFind: last) match, or -1 if there is none.
    int Find(char ch) const;
    int Find(LPCSTR lpszSub) const;
    int ReverseFind(char ch) const;

    void Format(LPCSTR lpszFormat, ...) __attribute__((format(AFX_PRINTF, 2, 3)));
    void FormatV(LPCSTR lpszFormat, va_list args);

    // Return a buffer for at least the given number of characters and the NUL. It contains the current string.
    LPSTR GetBuffer(int nMinBufLength);
    LPSTR GetBufferSetLength(int nNewLength);
    // Sets the length after the buffer was changed. If it is -1, the string ends at the first NUL.
    void ReleaseBuffer(int nNewLength = -1);

#if defined(AFX_HAS_WINDOWS)
    // Loads the string resource with that number from the list of modules. If it does not exist, returns false, and the
    // string is empty.
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

// Exceptions are thrown by pointer. A handler that does not rethrow the exception must call Delete.
class AFX_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    explicit CException(BOOL bAutoDelete = TRUE);
    ~CException() override;
    void Delete();

#if defined(AFX_HAS_WINDOWS)
    // Copies the message, at most nMaxError bytes including the NUL. Returns false, and stores an empty string, if the
    // exception has no message.
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr);
    // Shows the message in a message box. If the exception has no message, shows the string nMessageID (0: the
    // framework's "internal error"). Returns the identifier of the button that was pressed.
    int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);
#endif

private:
    BOOL m_bAutoDelete;
};

// An operation cannot be continued, and the user has been informed.
class AFX_API CUserException : public CException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    ~CUserException() override;
};

// An operation is not supported.
class AFX_API CNotSupportedException : public CException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    ~CNotSupportedException() override;
#if defined(AFX_HAS_WINDOWS)
    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) override;
#endif
};

// A resource, window or GDI object cannot be created.
class AFX_API CResourceException : public CException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
    ~CResourceException() override;
#if defined(AFX_HAS_WINDOWS)
    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) override;
#endif
};

// A file operation failed.
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
    // Returns the cause that corresponds to a value of errno.
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

// A buffered file of the C library, in text mode unless typeBinary is given. Functions that read, write or seek throw a
// CFileException if they fail. The destructor closes the file and ignores failures.
class AFX_API CStdioFile : public CObject {
    DECLARE_DYNAMIC(CStdioFile)
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        modeCreate = 0x1000,     // creates the file or truncates an existing one
        modeNoTruncate = 0x2000, // with modeCreate: does not truncate an existing file
        typeText = 0x4000,
        typeBinary = 0x8000,
    };
    enum SeekPosition : UINT { begin = 0, current = 1, end = 2 };

    CStdioFile();
    // Takes ownership of an open stream, which is closed by Close or the destructor.
    explicit CStdioFile(FILE* pOpenStream);
    // Throws a CFileException if the file cannot be opened.
    CStdioFile(LPCSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    // Returns false if the file cannot be opened; the cause is stored in *pError unless it is null.
    BOOL Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    void Close();

    // Returns the number of bytes read, which is less than nCount at the end of the file.
    UINT Read(void* lpBuf, UINT nCount);
    void Write(const void* lpBuf, UINT nCount);
    // Reads a line without its line feed. Returns false at the end of the file.
    BOOL ReadString(CString& rString);
    virtual void WriteString(LPCSTR lpsz);

    // Returns the new position from the start of the file, in bytes.
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    ULONGLONG GetPosition() const;
    void Flush();

    FILE* m_pStream; // null if no file is open

private:
    [[noreturn]] void ThrowErrno(int nFallback) const;
    CString m_strFileName;
};
