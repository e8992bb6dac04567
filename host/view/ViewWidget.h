// The toolkit's side of a structure view: the picture, the pointer and the keys.
#pragma once

#include "host/view/KeyboardCursor.h"
#include "host/view/Picking.h"
#include "platform/toolkit/Bridge.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPoint>
#include <QTimer>
#include <QWidget>

class QPainter;

namespace host {

class HostView;

// Ctrl adds objects or takes them away, Shift adds them; without either they replace the selection.
SelectMode SelectModeOf(Qt::KeyboardModifiers held);

// Left button: click selects or picks, drag selects by rectangle. Right button: orbit. Middle button, or right with
// Shift: pan. Wheel: zoom at the pointer. Escape breaks picking off or drops a rectangle. For the other keys see
// KeyboardCursor.
class ViewWidget final : public platform::HostedWidget<QWidget> {
  public:
    ViewWidget(HostView& view, HWND frame, QWidget* parent);

    void Leave();   // the view is closed: whatever still arrives concerns nobody
    void Outdate(); // the model or its projection changed: drawn anew at the next paint
    QSize sizeHint() const override { return {800, 600}; }
    // How often the model was drawn; painting without a change takes the kept picture.
    unsigned DrawCount() const { return m_drawCount; }
    const QString& TypedNumber() const { return m_keyboard.Number(); } // of the node to be picked

    bool event(QEvent* event) override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab goes from object to object

  private:
    enum class Drag { None, Press, Rectangle, Orbit, Pan };

    void Draw(double pixelRatio);
    int Stride() const;
    void DrawTripod(QPainter& painter);
    void DrawCaseName(QPainter& painter); // the current load case or combination
    void DrawPicked(QPainter& painter);
    void BeginCamera(Drag drag);

    HostView& m_view;
    bool m_left = false;
    QImage m_picture;
    bool m_outdated = true;
    bool m_coarse = false;     // m_picture leaves objects out
    qint64 m_fullDrawTime = 0; // milliseconds of the last complete drawing
    unsigned m_drawCount = 0;
    QTimer m_settle; // draws completely when the camera rests

    Drag m_drag = Drag::None;
    QPoint m_pressed;
    QPoint m_pointer{-1, -1}; // outside while negative
    KeyboardCursor m_keyboard;
};

} // namespace host
