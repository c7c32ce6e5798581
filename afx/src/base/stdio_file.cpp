// CStdioFile, implemented with streams of the C library.

#include <afx.h>

#include <cerrno>
#include <cstring>

IMPLEMENT_DYNAMIC(CStdioFile, CObject)

namespace {

// Opens a file for update without truncating it, or creates it; neither "w+" nor "r+" does both.
FILE* OpenWithoutTruncating(LPCSTR name, const std::string& suffix) {
    if (FILE* stream = std::fopen(name, ("r+" + suffix).c_str())) return stream;
    return errno == ENOENT ? std::fopen(name, ("w+" + suffix).c_str()) : nullptr;
}

FILE* OpenStream(LPCSTR name, UINT flags) {
    const std::string suffix = (flags & CStdioFile::typeBinary) != 0 ? "b" : "";
    const bool writes = (flags & (CStdioFile::modeWrite | CStdioFile::modeReadWrite)) != 0;
    if ((flags & CStdioFile::modeCreate) == 0) return std::fopen(name, ((writes ? "r+" : "r") + suffix).c_str());
    if ((flags & CStdioFile::modeNoTruncate) != 0) return OpenWithoutTruncating(name, suffix);
    return std::fopen(name, ("w+" + suffix).c_str());
}

} // namespace

CStdioFile::CStdioFile() : m_pStream(nullptr) {}

CStdioFile::CStdioFile(FILE* pOpenStream) : m_pStream(pOpenStream) {}

CStdioFile::CStdioFile(LPCSTR lpszFileName, UINT nOpenFlags) : m_pStream(nullptr) {
    CFileException reason;
    if (!Open(lpszFileName, nOpenFlags, &reason)) {
        AfxThrowFileException(reason.m_cause, reason.m_lOsError, lpszFileName);
    }
}

CStdioFile::~CStdioFile() {
    if (m_pStream != nullptr) std::fclose(m_pStream);
}

BOOL CStdioFile::Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    ASSERT(m_pStream == nullptr);
    m_pStream = OpenStream(lpszFileName, nOpenFlags);
    if (m_pStream == nullptr) {
        if (pError != nullptr) {
            pError->m_lOsError = errno;
            pError->m_cause = CFileException::ErrnoToException(errno);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_strFileName = lpszFileName;
    return TRUE;
}

void CStdioFile::Close() {
    FILE* stream = m_pStream;
    m_pStream = nullptr;
    errno = 0;
    if (stream != nullptr && std::fclose(stream) != 0) ThrowErrno(CFileException::diskFull);
}

void CStdioFile::ThrowErrno(int nFallback) const {
    const int cause = CFileException::ErrnoToException(errno);
    AfxThrowFileException(cause != CFileException::none ? cause : nFallback, errno, m_strFileName);
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount) {
    errno = 0;
    const std::size_t got = std::fread(lpBuf, 1, nCount, m_pStream);
    if (got < nCount && std::ferror(m_pStream)) ThrowErrno(CFileException::genericException);
    return static_cast<UINT>(got);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount) {
    errno = 0;
    if (std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount) ThrowErrno(CFileException::diskFull);
}

BOOL CStdioFile::ReadString(CString& rString) {
    errno = 0;
    rString.Empty();
    int ch = std::fgetc(m_pStream);
    const bool found = ch != EOF;
    for (; ch != EOF && ch != '\n'; ch = std::fgetc(m_pStream))
        rString += static_cast<char>(ch);
    if (std::ferror(m_pStream)) ThrowErrno(CFileException::genericException);
    return found;
}

void CStdioFile::WriteString(LPCSTR lpsz) {
    CStdioFile::Write(lpsz, static_cast<UINT>(std::strlen(lpsz)));
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom) {
    errno = 0;
#if defined(_WIN32)
    const int failed = ::_fseeki64(m_pStream, lOff, static_cast<int>(nFrom));
#else
    const int failed = ::fseeko(m_pStream, lOff, static_cast<int>(nFrom));
#endif
    if (failed) ThrowErrno(CFileException::badSeek);
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const {
    errno = 0;
#if defined(_WIN32)
    const LONGLONG position = ::_ftelli64(m_pStream);
#else
    const LONGLONG position = ::ftello(m_pStream);
#endif
    if (position < 0) ThrowErrno(CFileException::badSeek);
    return static_cast<ULONGLONG>(position);
}

void CStdioFile::Flush() {
    errno = 0;
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0) ThrowErrno(CFileException::diskFull);
}
