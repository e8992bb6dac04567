// Painting the nine diagrams of a member beside the toolkit's painter on the same values, and the values under the
// moving pointer.
#include "benchmarks/Ratios.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "model/entity/Sezione.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/window/Application.h"

#include <QImage>
#include <QPainter>

#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr int stations = 1000, width = 800, height = 600, kinds = 9;
constexpr const char* names[kinds] = {"N", "V2", "V3", "T", "M2", "M3", "N/A", "M2/W2", "M3/W3"};

using Values = std::array<std::vector<double>, 6>;
const Values& AllValues() {
    static const Values all = [] {
        Values made;
        for (int k = 0; k < 6; ++k)
            for (int i = 0; i < stations; ++i)
                made[static_cast<std::size_t>(k)].push_back(100 * std::sin(3.0 * i / (stations - 1) + k));
        return made;
    }();
    return all;
}
double Value(int component, int station) {
    return AllValues()[static_cast<std::size_t>(component)][static_cast<std::size_t>(station)];
}

// A beam with its results in a window that it is drawn into.
class Member {
  public:
    Member() {
        m_section.SetRectangle(0.3, 0.5);
        m_beam.SetNodi(&m_first, &m_last);
        m_beam.SetSezione(1, &m_section);
        m_beam.SetRisultati(&m_records);
        m_records.SetNodeResultCount(stations);
        for (int i = 0; i < stations; ++i)
            for (int k = 0; k < 6; ++k)
                m_records.GetNodeResults(i)->GetIndex(k) = Value(k, i);
        m_window.Create("STATIC", "", WS_POPUP | WS_VISIBLE, CRect(0, 0, width, height), nullptr, 0);
        CWinApp::PumpMessages();
    }
    ~Member() {
        m_window.DestroyWindow();
        CWinApp::PumpMessages();
    }
    // The exact results of a member with a load at each station.
    void LoadEachStation() {
        m_exact.SetLineLength(5);
        for (int i = 1; i < stations; ++i)
            m_exact.AddCarico(
                CTraveRisultati::PointForce{5.0 * i / stations, {Value(0, i), Value(1, i), 1}, {1, 1, 1}});
        m_beam.SetRisultati(&m_exact);
    }

    void Paint() {
        CClientDC(&m_window).FillSolidRect(0, 0, width, height, RGB(255, 255, 255));
        m_beam.DisegnaDiagrammaTrave(&m_window, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, CPoint());
    }
    void Read(CPoint at) { m_beam.DisegnaDiagrammaTrave(&m_window, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, at); }

  private:
    CNodo m_first{CFPoint(0, 0, 0)}, m_last{CFPoint(5, 0, 0)};
    CSezione m_section;
    CTrave m_beam;
    CElementoRisultati m_records;
    CTraveRisultati m_exact;
    CWnd m_window;
};

void PaintOurs(benchmark::State& state) {
    Member member;
    for (auto _ : state)
        member.Paint();
}

void PaintExact(benchmark::State& state) {
    Member member;
    member.LoadEachStation();
    for (auto _ : state)
        member.Paint();
}

void ReadOurs(benchmark::State& state) {
    Member member;
    int x = 0;
    for (auto _ : state)
        member.Read(CPoint(20 + ++x % (width - 40), height / 2));
}

// What is drawn of one diagram: filled, outlined, its axis, its name and three of its values.
void PaintDiagram(QPainter& painter, const QRect& panel, int kind) {
    QPolygonF curve;
    double lowest = 0, highest = 0;
    for (int i = 0; i < stations; ++i) {
        lowest = std::min(lowest, Value(kind % 6, i));
        highest = std::max(highest, Value(kind % 6, i));
    }
    const double scale = (panel.height() - 40) / (highest - lowest), axis = panel.top() + 26 + highest * scale;
    const double step = (panel.width() - 17.0) / (stations - 1), left = panel.left() + 8;
    curve << QPointF(left, axis);
    for (int i = 0; i < stations; ++i)
        curve << QPointF(left + i * step, axis - Value(kind % 6, i) * scale);
    curve << QPointF(left + (stations - 1) * step, axis);
    const QColor color = QColor::fromHsv(kind * 40, 255, 200);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color.lighter(180));
    painter.drawPolygon(curve);
    painter.setPen(QPen(color, 1));
    painter.drawPolyline(curve);
    painter.drawText(QPointF(panel.left() + 2, panel.top() + 10), QString("%1 [kN]").arg(names[kind]));
    for (const int station : {0, stations / 2, stations - 1})
        painter.drawText(QPointF(left + station * step, axis - Value(kind % 6, station) * scale),
                         QString::number(Value(kind % 6, station), 'g', 4));
    painter.fillRect(QRectF(left, axis, panel.width() - 17, 1), Qt::black);
}

void PaintByHand(benchmark::State& state) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    QFont font("Liberation Sans");
    font.setPixelSize(11);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        painter.setFont(font);
        for (int kind = 0; kind < kinds; ++kind)
            PaintDiagram(painter, QRect(kind % 2 * width / 2, kind / 2 * 117, width / 2, 117), kind);
    }
}

const bench::Ratio painting("paint_9_diagrams_of_1000_stations", PaintOurs, PaintByHand, 1.2);
const bench::Limit reading("diagram_values_under_the_pointer", ReadOurs, 16);
const bench::Limit exact("paint_9_diagrams_of_1000_loads", PaintExact, 50);

} // namespace
