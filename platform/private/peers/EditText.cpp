#include "platform/private/peers/EditText.h"

#include "platform/private/peers/WindowPeer.h"

namespace platform {

namespace {

// A load must not lose its sign on the way from a sheet.
bool IsDash(char32_t character) {
    return (character >= 0x2010 && character <= 0x2012) || character == 0x2015 || character == 0x2212;
}

} // namespace

QString InCodePage(const QString& text) {
    const QString joined = text.normalized(QString::NormalizationForm_C);
    if (ToQString(FromQString(joined)) == joined)
        return joined;
    QString kept;
    for (const char32_t character : joined.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        if (IsDash(character))
            kept += QLatin1Char('-');
        else if (ToQString(FromQString(one)) == one)
            kept += one;
    }
    return kept;
}

CString InCase(const CString& text, DWORD style) {
    CString result = text;
    if (style & ES_UPPERCASE)
        result.MakeUpper();
    else if (style & ES_LOWERCASE)
        result.MakeLower();
    return result;
}

QString TypedText(const QString& text, DWORD style) {
    if (text.isEmpty() || !text.at(0).isPrint())
        return text;
    QString typed = InCodePage(text);
    if (style & ES_NUMBER)
        typed.removeIf([](QChar c) { return c < QLatin1Char('0') || c > QLatin1Char('9'); });
    return ToQString(InCase(FromQString(typed), style));
}

QString LineValidator::Kept(QString text) const {
    text.removeIf([](QChar c) { return c == QLatin1Char('\n') || c == QLatin1Char('\r'); });
    return ToQString(InCase(FromQString(InCodePage(text)), m_style));
}

QValidator::State LineValidator::validate(QString& input, int& caret) const {
    const QString before = Kept(input.left(caret));
    const QString all = before + Kept(input.mid(caret));
    if (all != input) {
        input = all;
        caret = static_cast<int>(before.size());
    }
    return Acceptable;
}

} // namespace platform
