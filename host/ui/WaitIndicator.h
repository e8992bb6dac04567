// The wait bar of the status bar: it shows how far a long command is while the window stays alive.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QLabel;
class QProgressBar;
class QPushButton;
class QStatusBar;

namespace host {

class WaitIndicator : private QObject {
  public:
    // The widgets belong to the status bar, which outlives this object.
    explicit WaitIndicator(QStatusBar& bar);

    // Waits nest: only the outermost is shown, and the bar goes when it ends. Zero steps show a bar without a measure.
    void Begin(const QString& message, unsigned steps);
    void Step();
    void End();
    // Whether the user breaks the wait off, by Escape or by the button that the bar then has. Whatever else he does
    // until the wait ends is dropped. A wait that is over in no time offers nothing and drops nothing.
    bool IsBrokenOff();

    bool IsActive() const { return m_depth > 0; }
    unsigned Done() const { return m_done; }

  private:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void KeepAlive();
    void Offer(bool offered);

    QLabel* m_label;
    QProgressBar* m_progress;
    QPushButton* m_stop;
    bool m_asked = false;   // the wait can be broken off
    bool m_offered = false; // and the user sees that
    bool m_brokenOff = false;
    QElapsedTimer m_sinceRefresh;
    unsigned m_depth = 0;
    unsigned m_steps = 0;
    unsigned m_done = 0;
};

} // namespace host
