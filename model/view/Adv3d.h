// The projection of a structure view, and the surface that the model draws itself on.
//
// World: document's length unit, Z upwards. Eye axes: x to the right of the screen, y up, z towards the eye. Screen:
// pixels, y down. Lines are gathered by colour and width and reach the device context in few calls, at Flush().
#pragma once

#include "model/values/FPoint.h"
#include "model/view/ElementoSettings.h"
#include "platform/core/Geometry.h"
#include "platform/core/String.h"

#include <array>
#include <vector>

class CDC;
struct FaceElemento;

class Adv3d {
  public:
    // Standard directions: where the eye stands.
    enum Direzione { Axonometry, Top, Bottom, Front, Back, Right, Left };

    struct Punto {
        double x = 0; // pixels
        double y = 0;
        double depth = 0; // length units from the target's plane, larger is nearer to the eye
        bool visible =
            false; // false behind the eye of a perspective, or when a coordinate is no number: x and y mean nothing
        CPoint Pixel() const;
        // Of a pixel from the line that leads from here to `end` on the screen.
        double DistanceFromLine(CPoint pixel, const Punto& end) const;
    };

    static constexpr double touchPixels = 4; // how far from a line a click still means it
    static constexpr COLORREF selectionColor = RGB(220, 30, 30);

    Adv3d();

    // Rotate the structure about a screen axis through the target, in degrees, counter-clockwise seen from the axis'
    // end.
    void vista_ruotax(double gradi);
    void vista_ruotay(double gradi);
    void vista_ruotaz(double gradi);
    void SetDirection(Direzione direzione);
    // The eye axis i (0 right, 1 up, 2 towards the eye) as a unit vector of the world.
    CFPoint GetAxis(int i) const;
    void SetAxes(CFPoint destra, CFPoint alto); // made square and unit again; parallel vectors change nothing

    // The part of the window that is drawn into, in pixels. An empty one clips nothing.
    void SetViewport(const CRect& rect);
    const CRect& GetViewport() const { return m_viewport; }

    // The target is the point that rotations turn about and that stands at the viewport's middle plus the pan.
    void SetTarget(CFPoint punto);
    CFPoint GetTarget() const { return m_target; }
    void SetPan(double dx, double dy); // pixels, y down
    double GetPanX() const { return m_panX; }
    double GetPanY() const { return m_panY; }
    void SetScale(double pixelPerUnita); // pixels per length unit in the target's plane; not positive: unchanged
    double GetScale() const { return m_scale; }
    // Zooms about a pixel, which keeps showing the same point of the target's plane.
    void Zoom(double fattore, CPoint fermo);
    // The whole box in the viewport, with a margin in pixels. A box that is one point keeps the scale.
    void FitToBounds(CFPoint minimo, CFPoint massimo, int margine = 40);

    void SetPerspective(int prospettiva) { m_perspective = prospettiva != 0; }
    int IsPerspective() const { return m_perspective; }

    Punto Project(const CFPoint& punto) const;
    // The ends of what can be seen of a line, of which a perspective may leave a part behind the eye; false for
    // nothing.
    bool ProjectSegment(const CFPoint& a, const CFPoint& b, Punto& p, Punto& q) const;
    // The point of the plane through `piano`, parallel to the screen, that a pixel shows.
    CFPoint Unproject(CPoint pixel, const CFPoint& piano) const;
    double GetDepth(const CFPoint& punto) const { return Dot(m_axes[2], punto - m_target); }
    // Length units that one pixel covers at a point.
    double GetUnitsPerPixel(const CFPoint& punto) const;

    // The display settings of one kind of object (a code of TipoElemento) in this view; other codes share one.
    CElementoSettings& GetSettings(unsigned tipo);
    // Identifier of the load case whose loads are drawn; 0 draws all.
    void SetCasoCarico(int id) { m_loadCase = id; }
    int GetCasoCarico() const { return m_loadCase; }
    // Text and helper lines; white on a dark background. Loads, supports and selection have colours of their own.
    void SetTextColor(COLORREF colore) { m_textColor = colore; }
    COLORREF GetTextColor() const { return m_textColor; }

    // The context is not owned; with null nothing is drawn. What is gathered is flushed before the context changes.
    void SetDC(CDC* pDC);
    CDC* GetDC() const { return m_dc; }
    void Segment(const CFPoint& a, const CFPoint& b, COLORREF color, int width = 1);
    void Polyline(const CFPoint* points, int count, COLORREF color, int width = 1);
    // In pixels, for symbols that keep their size.
    void ScreenPolyline(const CPoint* points, int count, COLORREF color, int width = 1);
    void ScreenSquare(CPoint centre, int half, COLORREF color, int width = 1);
    void ScreenCircle(CPoint centre, int radius, COLORREF color, int width = 1);
    // The arrow ends at the point; `lunghezza` in pixels at the point.
    void Arrow(const CFPoint& tip, CFPoint direction, double lunghezza, COLORREF color, int width = 1);
    void Text(CPoint topLeft, const CString& text, COLORREF color);
    // Fills faces from the farthest to the nearest and outlines them; reorders the array.
    void DrawFaces(FaceElemento* faces, int count);
    void Flush();

  private:
    struct Batch {
        COLORREF color = 0;
        int width = 1;
        std::vector<CPoint> points;
        std::vector<DWORD> counts; // points of each polyline
    };

    void Rotate(int axisA, int axisB, double degrees);
    void Place();
    bool Clip(double& x1, double& y1, double& x2, double& y2) const;
    Batch& BatchFor(COLORREF color, int width);

    std::array<CFPoint, 3> m_axes; // eye axes in the world, unit and square to each other
    CFPoint m_target;
    CRect m_viewport;
    double m_panX = 0;
    double m_panY = 0;
    double m_scale = 50;
    double m_originX = 0; // pixel of the target
    double m_originY = 0;
    bool m_perspective = false;

    std::array<CElementoSettings, 6> m_settings;
    int m_loadCase = 0;
    COLORREF m_textColor = RGB(40, 40, 40);

    CDC* m_dc = nullptr;
    std::vector<Batch> m_batches;
    std::size_t m_lastBatch = 0;
};
