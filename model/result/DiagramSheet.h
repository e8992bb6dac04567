// The picture of a line's diagrams: one panel for each, over the same axis from the first node to the second.
#pragma once

#include "model/result/DiagramCurve.h"
#include "platform/drawing/DeviceContext.h"

#include <vector>

struct Diagram {
    int kind;           // a CElementoSettings::Risultato
    CString unit;       // of the curve's values
    DiagramCurve curve; // empty while the section lacks what the quantity is divided by
};

// What the panels share.
struct DiagramLine {
    double length;
    CString lengthUnit;
    int firstNode; // identifiers
    int lastNode;
};

class DiagramSheet {
  public:
    // Lays the panels out in the area, pixels. The context, the diagrams and the line outlive the sheet.
    DiagramSheet(CDC& dc, const CRect& area, const std::vector<Diagram>& diagrams, const DiagramLine& line);

    void Draw();
    // A vertical hair line through every panel at the place on the line that the point is over, with the values there;
    // nothing for a point outside the area.
    void DrawReading(CPoint at);

    // Where the sheet puts a value of a diagram, and where its titles and values stand once drawn.
    CPoint PointOf(int diagram, double x, double value) const;
    const std::vector<CRect>& Labels() const { return m_labels; }

  private:
    struct Panel {
        const Diagram* diagram;
        COLORREF color;
        CRect cell;
        int left; // of the axis, pixels
        int right;
        int axis;     // y of value 0
        double scale; // pixels to one unit; below 0 for quantities whose positive values lie below the axis
    };

    void LayOut(const std::vector<Diagram>& diagrams);
    void Place(Panel& panel, bool below) const;
    int PixelX(const Panel& panel, double x) const;
    static int PixelY(const Panel& panel, double value);
    void Outline(const Panel& panel);
    void DrawCurve(const Panel& panel);
    void DrawAxis(const Panel& panel);
    void DrawTitle(const Panel& panel);
    void DrawLabels(const Panel& panel);
    bool DrawLabel(const Panel& panel, const DiagramCurve::Point& peak, const CString& text, bool overCurve);
    bool IsCrossed(const Panel& panel, const CRect& place) const;
    void DrawNodes();
    void DrawValue(const Panel& panel, double x);
    void DrawBoxed(const CString& text, CPoint at, const CRect& bounds, COLORREF color);

    CDC& m_dc;
    CRect m_area;
    const DiagramLine& m_line;
    int m_columns = 1;
    int m_textHeight = 0;
    CFont m_font;
    std::vector<Panel> m_panels;
    std::vector<FinePoint> m_points; // the outline of the panel that is drawn, from left to right; empty for none
    std::vector<CRect> m_labels;
    std::ptrdiff_t m_firstLabel = 0; // of the panel that is drawn: its title
};
