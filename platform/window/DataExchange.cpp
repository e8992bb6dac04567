#include "platform/window/DataExchange.h"

#include "platform/controls/ComboBox.h"
#include "platform/controls/ListBox.h"
#include "platform/core/Exception.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/window/Application.h"

#include <charconv>
#include <climits>
#include <cmath>
#include <concepts>
#include <string_view>

namespace {

using platform::WindowPeer;

constexpr LPCTSTR notAnInteger = "Immettere un numero intero.";
constexpr LPCTSTR notANumber = "Immettere un numero.";

void FailWith(CDataExchange& exchange, LPCTSTR message) {
    AfxMessageBox(message);
    exchange.Fail();
}

// The number's characters without the blanks around them and without a plus sign, which the conversion does not know.
std::string_view NumberIn(const CString& text) {
    std::string_view all(static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength()));
    constexpr std::string_view blanks = " \t";
    const auto begin = all.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    all = all.substr(begin, all.find_last_not_of(blanks) - begin + 1);
    const bool plus = all.size() > 1 && all[0] == '+' && all[1] != '-' && all[1] != '+';
    return plus ? all.substr(1) : all;
}

// Whole or not at all: what is left over, an empty text and a value out of the type's range fail.
template <class Number>
bool Parse(const CString& text, Number& value) {
    const std::string_view digits = NumberIn(text);
    Number parsed{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), parsed);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size())
        return false;
    if constexpr (std::is_floating_point_v<Number>)
        if (!std::isfinite(parsed))
            return false;
    value = parsed;
    return true;
}

// Fifteen digits do not bring every double back. Where the control still shows what was written into it from this
// field, the number itself comes back, so that opening and confirming a dialog changes no bit. Once another number was
// read, the written one is past: the same digits typed later mean themselves.
template <std::floating_point Number>
void RestoreDigits(WindowPeer& control, const CString& text, Number& value) {
    if (control.written.text != text)
        control.written = {};
    else if (control.written.field == &value)
        value = static_cast<Number>(control.written.value);
}

template <class Number>
void ExchangeNumber(CDataExchange& exchange, int id, Number& value, LPCTSTR format, LPCTSTR message) {
    CWnd* control = exchange.PrepareEditCtrl(id);
    if (exchange.m_bSaveAndValidate) {
        const CString shown = control->GetWindowText();
        if (!Parse(shown, value))
            FailWith(exchange, message);
        if constexpr (std::floating_point<Number>)
            RestoreDigits(*control->m_hWnd, shown, value);
        return;
    }
    CString text;
    text.Format(format, value);
    if constexpr (std::floating_point<Number>)
        control->m_hWnd->written = {text, value, &value};
    if (control->GetWindowText() != text)
        control->SetWindowText(text);
}

template <class Number>
void CheckRange(CDataExchange& exchange, Number value, Number minimum, Number maximum, LPCTSTR format) {
    if (!exchange.m_bSaveAndValidate || (value >= minimum && value <= maximum))
        return;
    CString low;
    CString high;
    low.Format(format, minimum);
    high.Format(format, maximum);
    FailWith(exchange, "Immettere un numero compreso tra " + low + " e " + high + ".");
}

} // namespace

CWnd* CDataExchange::PrepareCtrl(int id) {
    CWnd* control = m_pDlgWnd->GetDlgItem(id);
    if (!control)
        throw new CNotSupportedException; // the template lacks the control: a fault of the program
    m_last = control;
    m_lastIsEdit = false;
    return control;
}

CWnd* CDataExchange::PrepareEditCtrl(int id) {
    CWnd* control = PrepareCtrl(id);
    m_lastIsEdit = true;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_last && m_last->m_hWnd) {
        if (m_lastIsEdit)
            m_last->m_hWnd->FocusByKeyboard(); // selects the text as well
        else
            m_last->SetFocus();
    }
    throw CExchangeFailure();
}

void DDX_Text(CDataExchange* pDX, int id, CString& value) {
    CWnd* control = pDX->PrepareEditCtrl(id);
    if (pDX->m_bSaveAndValidate)
        control->GetWindowText(value);
    else if (control->GetWindowText() != value)
        control->SetWindowText(value);
}

void DDX_Text(CDataExchange* pDX, int id, int& value) {
    ExchangeNumber(*pDX, id, value, "%d", notAnInteger);
}

void DDX_Text(CDataExchange* pDX, int id, double& value) {
    ExchangeNumber(*pDX, id, value, "%.15g", notANumber);
}

void DDX_Control(CDataExchange* pDX, int id, CWnd& control) {
    if (control.m_hWnd)
        return;
    pDX->PrepareCtrl(id);
    control.SubclassDlgItem(static_cast<UINT>(id), pDX->m_pDlgWnd);
}

void DDX_Check(CDataExchange* pDX, int id, int& value) {
    WindowPeer& button = *pDX->PrepareCtrl(id)->m_hWnd;
    if (pDX->m_bSaveAndValidate)
        value = button.Check();
    else
        button.SetCheck(value < 0 || value > 2 ? 0 : value);
}

void DDX_Radio(CDataExchange* pDX, int id, int& value) {
    const WindowPeer& first = *pDX->PrepareCtrl(id)->m_hWnd;
    if (pDX->m_bSaveAndValidate)
        value = -1;
    bool inGroup = false;
    int index = 0;
    for (WindowPeer* control : first.parent->children) {
        if (control == &first)
            inGroup = true;
        else if (inGroup && (control->style & WS_GROUP))
            break;
        if (!inGroup || !(control->DialogCode() & platform::IsRadioButton))
            continue;
        if (!pDX->m_bSaveAndValidate)
            control->SetCheck(index == value);
        else if (control->Check())
            value = index;
        ++index;
    }
}

void DDX_CBString(CDataExchange* pDX, int id, CString& value) {
    auto& combo = dynamic_cast<CComboBox&>(*pDX->PrepareCtrl(id));
    if (pDX->m_bSaveAndValidate)
        combo.GetWindowText(value);
    else if (combo.SelectString(-1, value) < 0)
        combo.SetWindowText(value);
}

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minimum, int maximum) {
    CheckRange(*pDX, value, minimum, maximum, "%d");
}

void DDV_MinMaxDouble(CDataExchange* pDX, double value, double minimum, double maximum) {
    CheckRange(*pDX, value, minimum, maximum, "%.15g");
}
