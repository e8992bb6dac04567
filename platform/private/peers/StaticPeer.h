// Labels, pictures, frames and lines.
#pragma once

#include "platform/private/peers/Hosted.h"

#include <QImage>

namespace platform {

class StaticPeer final : public Hosted<QWidget> {
  public:
    StaticPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    CString Text() const override { return m_text; }
    void SetText(const CString& text) override;
    UINT DialogCode() const override { return IsStatic; }
    std::unique_ptr<CWnd> MakeObject() const override;
    void StyleChanged() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void PaintText(QPainter& painter) const;
    void PaintShape(QPainter& painter, UINT type) const;
    void PaintPicture(QPainter& painter);
    void PaintBorder(QPainter& painter) const;

    CString m_text;
    int m_number;     // of a picture of the resources; 0 for none
    QImage m_picture; // as last rendered
};

} // namespace platform
