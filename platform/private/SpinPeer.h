// The pair of arrows beside an edit.
#pragma once

#include "platform/private/Hosted.h"

#include <QBasicTimer>

namespace platform {

class SpinPeer final : public Hosted<QWidget> {
  public:
    SpinPeer(const ControlSpec& spec, WindowPeer& parentPeer);
    ~SpinPeer() override;

    std::unique_ptr<CWnd> makeObject() const override;

    void setRange(int lower, int upper);
    int lower() const { return m_lower; }
    int upper() const { return m_upper; }
    int position();             // the buddy's number, when it shows one
    int setPosition(int value); // shows it in the buddy; returns the old one
    WindowPeer* buddy() const;
    WindowPeer* setBuddy(WindowPeer* buddy);
    int base() const { return m_base; }
    void setBase(int base);

    void step(int direction, bool ends); // 1 up, -1 down; `ends` tells the end of scrolling with it

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    int directionAt(const QPoint& point) const;
    int inRange(long long value) const;
    void attachBeside(WindowPeer& buddy);
    void showInBuddy();
    void tellScroll(UINT code);
    void stopRepeating();

    int m_lower = 0;
    int m_upper = 100;
    int m_position = 0;
    int m_base = 10;
    QPointer<QWidget> m_buddy;
    int m_pressed = 0; // the arrow that is held: 1 up, -1 down, 0 none
    QBasicTimer m_repeat;
    bool m_repeating = false;
};

} // namespace platform
