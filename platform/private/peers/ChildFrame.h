// Caption and border of a dialog that lives inside another window, where no window manager makes them. Places are in
// the dialog's widget, pixels.
#pragma once

#include "platform/core/Types.h"

#include <QMargins>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QWidget>

namespace platform {

class ChildFrame {
  public:
    // The window is the dialog's whole widget, frame included; its style tells which parts there are.
    ChildFrame(QWidget& window, DWORD style);

    QMargins Margins() const; // from the widget's edges to the client area
    void Paint(QPainter& painter, bool active) const;

    bool OnCaption(QPoint at) const;
    bool OnCloseBox(QPoint at) const;

    // A drag with the left button: the caption moves the window, a border sizes it. `at` is a point of the screen.
    void BeginDrag(QPoint at);
    void Drag(QPoint at);
    void EndDrag() { m_dragged = 0; }
    bool IsDragging() const { return m_dragged != 0; }
    void ShowCursor(QPoint at); // what a drag that starts here would do

  private:
    // What a drag takes along: the edges, all four for the caption.
    enum Edge : unsigned { Left = 1, Top = 2, Right = 4, Bottom = 8 };

    unsigned EdgesAt(QPoint at) const;
    QRect CaptionRect() const;
    QRect CloseBoxRect() const;
    QRect Within(QRect place) const;

    QWidget& m_window;
    int m_border;
    int m_caption;
    bool m_sizable;
    bool m_closable;
    unsigned m_dragged = 0; // edges
    QPoint m_grabbed;       // on the screen, when the drag began
    QRect m_place;          // of the window then
};

} // namespace platform
