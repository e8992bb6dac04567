// What may enter a field, whatever way it comes: by keys, from the clipboard, composed by an input method.
#pragma once

#include "platform/core/String.h"
#include "platform/core/Types.h"

#include <QString>
#include <QValidator>

namespace platform {

// The text without the characters that the code page lacks, which the program would read as question marks. Accents
// that come as characters of their own join their letters, and every kind of minus and hyphen that it lacks becomes
// "-".
QString InCodePage(const QString& text);

// In the case that ES_UPPERCASE or ES_LOWERCASE asks for.
CString InCase(const CString& text, DWORD style);

// What a key or an input method may type into a field of that style; empty when it types nothing there. Control
// characters stay as they are.
QString TypedText(const QString& text, DWORD style);

// Keeps the text of a field of one line to what it may hold: pasted text comes past the keys, and a number copied from
// a sheet brings a line end along and would be no number. Owned by its parent.
class LineValidator final : public QValidator {
  public:
    LineValidator(DWORD style, QObject* parent) : QValidator(parent), m_style(style) {}
    State validate(QString& input, int& caret) const override;

  private:
    QString Kept(QString text) const;

    DWORD m_style; // ES_
};

} // namespace platform
