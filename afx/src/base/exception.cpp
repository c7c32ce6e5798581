// The exception classes and the functions that throw them. Their messages are in exception_text.cpp.

#include <afx.h>

#include <cerrno>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CUserException, CException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
CException::~CException() = default;

void CException::Delete() {
    if (m_bAutoDelete) delete this;
}

CUserException::CUserException() = default;
CUserException::~CUserException() = default;
CNotSupportedException::CNotSupportedException() = default;
CNotSupportedException::~CNotSupportedException() = default;
CResourceException::CResourceException() = default;
CResourceException::~CResourceException() = default;

CFileException::CFileException(int cause, LONG lOsError, LPCSTR lpszFileName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName) {}
CFileException::~CFileException() = default;

int CFileException::ErrnoToException(int nErrno) {
    switch (nErrno) {
    case 0:
        return none;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
        return badPath;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return accessDenied;
    case ESPIPE:
        return badSeek;
    case EIO:
        return hardIO;
    case ENOSPC:
        return diskFull;
    default:
        return genericException;
    }
}

void AfxThrowUserException() {
    throw new CUserException;
}
void AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}
void AfxThrowResourceException() {
    throw new CResourceException;
}
void AfxThrowFileException(int cause, LONG lOsError, LPCSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}
