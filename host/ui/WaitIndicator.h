// The wait bar of the status bar: it shows how far a long command is while the window stays alive.
#pragma once

#include <QElapsedTimer>
#include <QString>

class QLabel;
class QProgressBar;
class QStatusBar;

namespace host {

class WaitIndicator {
  public:
    // The widgets belong to the status bar, which outlives this object.
    explicit WaitIndicator(QStatusBar& bar);

    // Waits nest: only the outermost is shown, and the bar goes when it ends. Zero steps show a bar without a measure.
    void Begin(const QString& message, unsigned steps);
    void Step();
    void End();

    bool IsActive() const { return m_depth > 0; }
    unsigned Done() const { return m_done; }

  private:
    void KeepAlive();

    QLabel* m_label;
    QProgressBar* m_progress;
    QElapsedTimer m_sinceRefresh;
    unsigned m_depth = 0;
    unsigned m_steps = 0;
    unsigned m_done = 0;
};

} // namespace host
