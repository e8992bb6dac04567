// What a hand does with pointer and keys. Each is told to the event log first, and goes to the native window, which a
// modal dialog may hold shut.
#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

#include <string>
#include <vector>

class QWidget;

namespace hand {

std::string NameOf(const QWidget& widget); // class, control number and window
// What takes the pointer: visible, enabled, and nothing over it. Texts, frames and gaps only with `inert`.
std::vector<QWidget*> Leaves(QWidget& window, bool inert);
bool IsText(const QWidget& control); // takes a text

void Click(QWidget& widget, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers held, bool twice);
void Drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button);
void Wheel(QWidget& widget, QPoint at, int notches);
void Key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});
// Over what the edit holds that has the focus of the window; an empty text deletes it.
void Type(QWidget& window, const QString& text);

} // namespace hand
