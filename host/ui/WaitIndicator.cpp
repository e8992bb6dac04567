#include "host/ui/WaitIndicator.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

#include <algorithm>
#include <climits>

namespace host {

namespace {
constexpr int refreshMilliseconds = 50; // more often would make the bar slower than the command
}

WaitIndicator::WaitIndicator(QStatusBar& bar) : m_label(new QLabel), m_progress(new QProgressBar) {
    m_progress->setFixedWidth(200);
    m_progress->setTextVisible(true);
    bar.addPermanentWidget(m_label);
    bar.addPermanentWidget(m_progress);
    m_label->hide();
    m_progress->hide();
}

void WaitIndicator::Begin(const QString& message, unsigned steps) {
    if (m_depth++ > 0)
        return;
    m_steps = std::min(steps, static_cast<unsigned>(INT_MAX));
    m_done = 0;
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
    if (m_depth == 0 || --m_depth > 0)
        return;
    m_label->hide();
    m_progress->hide();
    QApplication::restoreOverrideCursor();
}

// The user's own events wait until the command is over: a click in the middle would start a second one.
void WaitIndicator::KeepAlive() {
    m_progress->setValue(static_cast<int>(m_done));
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceRefresh.start();
}

} // namespace host
