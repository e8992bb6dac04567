#include "tests/monkey/Hand.h"

#include "platform/toolkit/Bridge.h"
#include "platform/window/Window.h"
#include "tests/monkey/EventLog.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

using eventlog::Event;

namespace hand {

namespace {

// Texts, frames and gaps.
bool IsInert(const QWidget& widget) {
    const CWnd* window = platform::WindowOf(&widget);
    return (window && window->GetDlgCtrlID() == -1) || widget.inherits("QLabel") || widget.inherits("QSizeGrip") ||
           widget.inherits("QToolBarSeparator") || widget.inherits("QMenuBar");
}

std::string Text(QPoint at) {
    return std::to_string(at.x()) + "," + std::to_string(at.y());
}

// False when another window holds the user.
bool Activate(QWidget& widget) {
    const QPointer<QWidget> alive(&widget);
    QWidget* top = widget.window();
    if (!top->windowHandle() || !top->isVisible())
        return false;
    if (QApplication::activeWindow() != top && !QApplication::activePopupWidget() &&
        (!QApplication::activeModalWidget() || QApplication::activeModalWidget() == top)) {
        QApplication::setActiveWindow(top);
        QApplication::processEvents();
    }
    return alive && alive->window()->windowHandle();
}

} // namespace

std::string NameOf(const QWidget& widget) {
    const CWnd* window = platform::WindowOf(&widget);
    const std::string number = window ? " " + std::to_string(window->GetDlgCtrlID()) : "";
    return widget.metaObject()->className() + number + " of \"" + widget.window()->windowTitle().toStdString() + "\"";
}

std::vector<QWidget*> Leaves(QWidget& window, bool inert) {
    std::vector<QWidget*> leaves;
    const auto isShown = [&window](const QWidget* each) {
        return !each->isWindow() && each->isVisibleTo(&window) && each->window() == &window;
    };
    for (QWidget* each : window.findChildren<QWidget*>()) {
        const QObjectList& inside = each->children();
        if (isShown(each) && each->isEnabled() && (inert || !IsInert(*each)) &&
            std::none_of(inside.begin(), inside.end(), [&](const QObject* child) {
                return child->isWidgetType() && isShown(static_cast<const QWidget*>(child));
            }))
            leaves.push_back(each);
    }
    return leaves;
}

bool IsText(const QWidget& control) {
    return control.inherits("QLineEdit") || (control.parent() && control.parent()->inherits("QPlainTextEdit"));
}

void Click(QWidget& widget, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers held, bool twice) {
    Event("click " + Text(at) + (twice ? " twice" : "") + " button " + std::to_string(button) + " with " +
          std::to_string(held) + " on " + NameOf(widget));
    if (!Activate(widget))
        return;
    const QPointer<QWindow> window(widget.window()->windowHandle());
    const QPoint place = widget.mapTo(widget.window(), at);
    QTest::mouseMove(window, place);
    if (!window)
        return;
    twice ? QTest::mouseDClick(window, button, held, place) : QTest::mouseClick(window, button, held, place);
}

void Drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button) {
    Event("drag " + Text(from) + " to " + Text(to) + " button " + std::to_string(button) + " on " + NameOf(widget));
    if (!Activate(widget))
        return;
    const QPointer<QWindow> window(widget.window()->windowHandle());
    const QPoint places[] = {widget.mapTo(widget.window(), from), widget.mapTo(widget.window(), (from + to) / 2),
                             widget.mapTo(widget.window(), to)};
    QTest::mousePress(window, button, Qt::NoModifier, places[0]);
    for (const QPoint& place : places)
        if (window)
            QTest::mouseMove(window, place);
    if (window)
        QTest::mouseRelease(window, button, Qt::NoModifier, places[2]);
}

void Wheel(QWidget& widget, QPoint at, int notches) {
    Event("wheel " + std::to_string(notches) + " on " + NameOf(widget));
    if (!Activate(widget) || QApplication::activeModalWidget())
        return;
    QWheelEvent event(at, widget.mapToGlobal(at), {}, QPoint(0, notches * 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void Key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    Event("key " + QKeySequence(key | static_cast<int>(modifiers)).toString().toStdString() + " to " + NameOf(widget));
    if (!Activate(widget))
        return;
    const QPointer<QWindow> window(widget.window()->windowHandle());
    for (const auto action : {QTest::Press, QTest::Release})
        if (window)
            QTest::sendKeyEvent(action, window, static_cast<Qt::Key>(key), text, modifiers);
}

void Type(QWidget& window, const QString& text) {
    const QPointer<QWidget> alive(&window);
    Key(window, Qt::Key_Home);
    if (alive)
        Key(*alive, Qt::Key_End, Qt::ShiftModifier);
    if (!alive)
        return;
    Event("type \"" + text.toStdString() + "\"");
    if (!Activate(*alive))
        return;
    const QPointer<QWindow> native(alive->windowHandle());
    if (text.isEmpty())
        QTest::sendKeyEvent(QTest::Click, native, Qt::Key_Delete, QString(), Qt::NoModifier);
    for (const QChar each : text)
        if (native)
            QTest::sendKeyEvent(QTest::Click, native, static_cast<Qt::Key>(each.toUpper().unicode()), QString(each),
                                Qt::NoModifier);
}

} // namespace hand
