// The application's own modal dialogs, answered by a test.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

// Acts in the next one once it is open; one that the action leaves open is cancelled.
inline void WhenAsked(std::function<void(QDialog&)> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog) << "no dialog opened";
        action(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

template <class Widget>
Widget& Find(QDialog& dialog, const char* name) {
    return *dialog.findChild<Widget*>(name);
}
