// Labels, pictures, frames and lines.
#pragma once

#include "platform/private/Hosted.h"

#include <QImage>

namespace platform {

class StaticPeer final : public Hosted<QWidget> {
  public:
    StaticPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    CString text() const override { return m_text; }
    void setText(const CString& text) override;
    UINT dialogCode() const override { return IsStatic; }
    std::unique_ptr<CWnd> makeObject() const override;
    void styleChanged() override;

    void setPicture(const QImage& picture);
    void setNumber(int number); // a picture of the resources; 0 for none

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void paintText(QPainter& painter) const;
    void paintShape(QPainter& painter, UINT type) const;
    void paintPicture(QPainter& painter);
    void paintBorder(QPainter& painter) const;

    CString m_text;
    int m_number = 0;
    QImage m_picture; // of the program, or the numbered one as last rendered
};

} // namespace platform
