// The pair of arrows beside an edit.
#pragma once

#include "platform/private/peers/Hosted.h"

#include <QBasicTimer>

namespace platform {

class SpinPeer final : public Hosted<QWidget> {
  public:
    SpinPeer(const ControlSpec& spec, WindowPeer& parentPeer);
    ~SpinPeer() override;

    std::unique_ptr<CWnd> MakeObject() const override;

    void SetRange(int lower, int upper);
    int Position();             // the buddy's number, when it shows one
    int SetPosition(int value); // shows it in the buddy; returns the old one
    WindowPeer* Buddy() const;
    WindowPeer* SetBuddy(WindowPeer* buddy);

    void Step(int direction, bool ends); // 1 up, -1 down; `ends` tells the end of scrolling with it

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    int DirectionAt(const QPoint& point) const;
    int InRange(long long value) const;
    void AttachBeside(WindowPeer& buddy);
    void ShowInBuddy();
    void TellScroll(UINT code);
    void StopRepeating();

    int m_lower = 100; // up goes towards the second number, also when that is the smaller one
    int m_upper = 0;
    int m_position = 0;
    QPointer<QWidget> m_buddy;
    int m_pressed = 0; // the arrow that is held: 1 up, -1 down, 0 none
    QBasicTimer m_repeat;
    bool m_repeating = false;
};

} // namespace platform
