#include "model/values/ExceptionEx.h"

#include "platform/window/Application.h"

#include <algorithm>
#include <cstring>
#include <utility>

IMPLEMENT_DYNAMIC(CExceptionEx, CException)

CExceptionEx::CExceptionEx(CString messaggio) : m_strMessage(std::move(messaggio)) {
}

BOOL CExceptionEx::GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext) {
    if (helpContext)
        *helpContext = 0;
    if (!buffer || size == 0)
        return FALSE;
    const std::size_t length = std::min<std::size_t>(size - 1, static_cast<std::size_t>(m_strMessage.GetLength()));
    std::memcpy(buffer, static_cast<LPCSTR>(m_strMessage), length);
    buffer[length] = '\0';
    return !m_strMessage.IsEmpty();
}

int CExceptionEx::ReportError(UINT nType, UINT nMessageID) {
    return AfxMessageBox(m_strMessage.IsEmpty() ? "L'operazione non è riuscita."_t : m_strMessage, nType, nMessageID);
}
