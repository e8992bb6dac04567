#include "host/ui/WaitIndicator.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QWidget>

#include <algorithm>
#include <climits>

namespace host {

namespace {
constexpr int refreshMilliseconds = 50; // more often would make the bar slower than the command
}

WaitIndicator::WaitIndicator(QStatusBar& bar)
    : m_label(new QLabel), m_progress(new QProgressBar), m_stop(new QPushButton(QStringLiteral("Interrompi (Esc)"))) {
    m_progress->setFixedWidth(200);
    m_progress->setTextVisible(true);
    bar.addPermanentWidget(m_label);
    bar.addPermanentWidget(m_progress);
    bar.addPermanentWidget(m_stop);
    m_stop->setObjectName("interrompi");
    m_stop->setFocusPolicy(Qt::NoFocus);
    QObject::connect(m_stop, &QPushButton::clicked, this, [this] { m_brokenOff = true; });
    m_label->hide();
    m_progress->hide();
    m_stop->hide();
}

void WaitIndicator::Begin(const QString& message, unsigned steps) {
    if (m_depth++ > 0)
        return;
    m_steps = std::min(steps, static_cast<unsigned>(INT_MAX));
    m_done = 0;
    m_asked = m_brokenOff = false;
    m_label->setText(message);
    m_progress->setRange(0, static_cast<int>(m_steps));
    m_progress->setValue(0);
    m_label->show();
    m_progress->show();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    KeepAlive();
}

void WaitIndicator::Step() {
    if (m_depth != 1)
        return;
    if (m_done < m_steps)
        ++m_done;
    if (m_sinceRefresh.elapsed() >= refreshMilliseconds)
        KeepAlive();
}

void WaitIndicator::End() {
    if (m_depth == 1 && m_offered)
        KeepAlive(); // a second Escape, while what was made is taken back, is the wait's too
    if (m_depth == 0 || --m_depth > 0)
        return;
    m_label->hide();
    m_progress->hide();
    Offer(false);
    QApplication::restoreOverrideCursor();
}

bool WaitIndicator::IsBrokenOff() {
    m_asked = m_depth > 0;
    return m_asked && m_brokenOff;
}

void WaitIndicator::Offer(bool offered) {
    if (offered == m_offered)
        return;
    m_offered = offered;
    m_stop->setVisible(offered);
    if (offered)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

// Sees what the user does while the wait can be broken off. Events of native windows go on to the widgets that they are
// meant for, and come here again.
bool WaitIndicator::eventFilter(QObject* receiver, QEvent* event) {
    if (!receiver->isWidgetType() || receiver == m_stop)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        m_brokenOff = m_brokenOff || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        event->accept();
        return true;
    case QEvent::Close:
        event->ignore();
        return true;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return event->isInputEvent();
    }
}

// The user's own events wait until the command is over: a click in the middle would start a second one. Where it can be
// broken off they come, to the filter.
void WaitIndicator::KeepAlive() {
    if (m_asked)
        Offer(true);
    m_progress->setValue(static_cast<int>(m_done));
    QApplication::processEvents(m_offered ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    m_sinceRefresh.start();
}

} // namespace host
