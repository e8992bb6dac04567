// The exceptions of the framework. They are thrown and caught by pointer; whoever catches one ends it with Delete():
//
//   try { ... } catch (CException* exception) { exception->ReportError(); exception->Delete(); }
#pragma once

#include "platform/core/Object.h"
#include "platform/core/String.h"

#include <utility>

class CException : public CObject {
    DECLARE_DYNAMIC(CException)

    // `autoDelete` is TRUE for an exception made with new, FALSE for one that lives elsewhere.
    explicit CException(BOOL autoDelete = TRUE) : m_bAutoDelete(autoDelete) {}

    // Deletes the exception when it was made for that; nothing may touch it afterwards.
    void Delete();

    // Writes the text, cut to `size` bytes with the closing 0, and returns non-zero; 0 when the exception has none.
    virtual BOOL GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext = nullptr);

    // Shows the text in a message box of the given MB_ type (0 is one OK button) and returns the button's code. An
    // exception without a text shows a general one. `messageId` is accepted for its callers and not used.
    virtual int ReportError(UINT type = 0, UINT messageId = 0);

  private:
    BOOL m_bAutoDelete;
};

// An exception that is nothing but its text; an empty one stands for "no text of its own".
class CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)

    explicit CSimpleException(const CString& text, BOOL autoDelete = TRUE) : CException(autoDelete), m_strText(text) {}

    BOOL GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext = nullptr) override;

  private:
    CString m_strText;
};

class CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)

    explicit CMemoryException(BOOL autoDelete = TRUE);
};

class CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)

    explicit CNotSupportedException(BOOL autoDelete = TRUE);
};

// A position outside an array, the head of an empty list and the like: a fault of the program, not of the user.
class CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)

    explicit CInvalidArgException(BOOL autoDelete = TRUE);
};

// Ends an operation that has already told the user why.
class CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)

    explicit CUserException(BOOL autoDelete = TRUE) : CSimpleException(CString(), autoDelete) {}
};

class CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)

    enum Cause {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    // `osError` is an errno value, or -1 when there is none.
    explicit CFileException(int cause = none, int osError = -1, const CString& fileName = CString());

    BOOL GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext = nullptr) override;

    int m_cause;
    int m_lOsError;
    CString m_strFileName;
};

// Those that these throw are made beforehand: throwing them needs no memory, and Delete() leaves them.
[[noreturn]] void AfxThrowMemoryException();
[[noreturn]] void AfxThrowInvalidArgException();
[[noreturn]] void AfxThrowUserException();

namespace platform {

// Counts the guards that are at work. When the outermost ends and something escaped meanwhile, the application puts in
// order what was left half done (CWinApp::recover).
class GuardDepth {
  public:
    GuardDepth();
    ~GuardDepth();
    GuardDepth(const GuardDepth&) = delete;
    GuardDepth& operator=(const GuardDepth&) = delete;
};

// To be called where an exception that nobody wanted is caught: tells the user, unless that has been done, and ends it.
void ReportEscaped();

// Runs what the toolkit called us for. No exception may reach its loop, which would end the program and the user's
// work: one that escapes ends here with its message, and the result is false.
template <class Work>
bool RunGuarded(Work&& work) {
    const GuardDepth depth;
    try {
        std::forward<Work>(work)();
        return true;
    } catch (...) {
        ReportEscaped();
        return false;
    }
}

} // namespace platform
