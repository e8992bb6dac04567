// The application's own exception: a message. Thrown by pointer, reported with ReportError, ended with Delete.
#pragma once

#include "platform/core/Exception.h"

class CExceptionEx : public CException {
    DECLARE_DYNAMIC(CExceptionEx)

    explicit CExceptionEx(CString messaggio);

    BOOL GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext = nullptr) override;
    // Shows the message, a general one when it is empty, in a box of type `nType`; returns the button.
    int ReportError(UINT nType = 0, UINT nMessageID = 0) override;

  private:
    CString m_strMessage;
};
