#include "platform/core/Exception.h"
#include "platform/window/Application.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <new>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CFileException, CException)

namespace {

BOOL CopyMessage(const CString& text, LPSTR buffer, UINT size) {
    if (!buffer || size == 0)
        return FALSE;
    const std::size_t count = std::min<std::size_t>(size - 1, text.View().size());
    std::memcpy(buffer, text.View().data(), count);
    buffer[count] = '\0';
    return text.IsEmpty() ? FALSE : TRUE;
}

CString FileCause(int cause) {
    switch (cause) {
    case CFileException::fileNotFound:
        return "Impossibile trovare il file %1."_t;
    case CFileException::badPath:
        return "Il percorso di %1 non è valido."_t;
    case CFileException::tooManyOpenFiles:
        return "Impossibile aprire %1: troppi file aperti."_t;
    case CFileException::accessDenied:
        return "Accesso a %1 negato."_t;
    case CFileException::sharingViolation:
    case CFileException::lockViolation:
        return "Il file %1 è usato da un altro programma."_t;
    case CFileException::diskFull:
    case CFileException::directoryFull:
        return "Spazio esaurito durante la scrittura di %1."_t;
    case CFileException::hardIO:
        return "Errore di lettura o scrittura nel file %1."_t;
    case CFileException::endOfFile:
        return "Il file %1 termina prima del previsto."_t;
    case CFileException::invalidFile:
        return "Il file %1 non è valido."_t;
    default:
        return "Si è verificato un errore nel file %1."_t;
    }
}

} // namespace

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPSTR buffer, UINT size, UINT*) {
    CopyMessage(CString(), buffer, size);
    return FALSE;
}

int CException::ReportError(UINT type, UINT) {
    char text[512];
    if (!GetErrorMessage(text, sizeof text))
        CopyMessage("Si è verificato un errore."_t, text, sizeof text);
    return AfxMessageBox(text, type);
}

BOOL CSimpleException::GetErrorMessage(LPSTR buffer, UINT size, UINT*) {
    return CopyMessage(m_strText, buffer, size);
}

CMemoryException::CMemoryException(BOOL autoDelete) : CSimpleException("Memoria esaurita.", autoDelete) {
}

CNotSupportedException::CNotSupportedException(BOOL autoDelete)
    : CSimpleException("L'operazione non è disponibile."_t, autoDelete) {
}

CInvalidArgException::CInvalidArgException(BOOL autoDelete)
    : CSimpleException("L'operazione ha ricevuto un valore non valido."_t, autoDelete) {
}

CFileException::CFileException(int cause, int osError, const CString& fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {
}

BOOL CFileException::GetErrorMessage(LPSTR buffer, UINT size, UINT*) {
    CString text = FileCause(m_cause);
    text.Replace("%1", m_strFileName.IsEmpty() ? "senza nome" : m_strFileName);
    return CopyMessage(text, buffer, size);
}

namespace {

// Made while the library loads, so that running out of memory can still be told.
CMemoryException memoryException(FALSE);
CInvalidArgException invalidArgException(FALSE);
CUserException userException(FALSE);

} // namespace

void AfxThrowMemoryException() {
    throw &memoryException;
}

void AfxThrowInvalidArgException() {
    throw &invalidArgException;
}

void AfxThrowUserException() {
    throw &userException;
}

namespace platform {

namespace {
int guards = 0;
bool somethingEscaped = false;
} // namespace

GuardDepth::GuardDepth() {
    ++guards;
}

GuardDepth::~GuardDepth() {
    if (guards == 1 && std::exchange(somethingEscaped, false))
        if (const CWinApp* application = AfxGetApp(); application && application->recover)
            application->recover();
    --guards;
}

void ReportEscaped() {
    somethingEscaped = true;
    try {
        throw;
    } catch (CException* exception) {
        if (!exception->IsKindOf(RUNTIME_CLASS(CUserException)))
            exception->ReportError();
        exception->Delete();
    } catch (const std::bad_alloc&) {
        CMemoryException(FALSE).ReportError();
    } catch (const std::exception& exception) {
        CSimpleException("Si è verificato un errore: "_t + CString::FromUtf8(exception.what()), FALSE).ReportError();
    } catch (...) {
        CException(FALSE).ReportError();
    }
}

} // namespace platform
