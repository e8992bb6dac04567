#include "host/view/HostView.h"

#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/generation/DialogGrigliaNodi.h"
#include "host/document/HostDocument.h"
#include "host/view/SaveDialog.h"
#include "host/view/ViewOwner.h"
#include "host/view/ViewRenderer.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "model/element/TipoElemento.h"
#include "model/values/Units.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"

#include <QApplication>
#include <QClipboard>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <utility>

namespace host {

IMPLEMENT_DYNAMIC(HostView, CView)

BEGIN_MESSAGE_MAP(HostView, CView)
    ON_WM_PAINT()
    ON_MESSAGE(WM_FINEDIALOGO, OnFineDialogo)
    ON_MESSAGE(WM_GRIGLIANODI_AGGIORNA, OnGridChanged)
    ON_MESSAGE(WM_GRIGLIANODI_FINE, OnGridDone)
END_MESSAGE_MAP()

namespace {
constexpr double degreesPerPixel = 0.4; // of orbit
constexpr double firstScale = 50;       // pixels per metre of an empty document

QString AskPictureFile(QWidget* parent) {
    return AskSaveName(parent, QStringLiteral("Salva immagine"), QStringLiteral("immagine.png"),
                       {"Immagini PNG (*.png)", "Immagini JPEG (*.jpg)", "Immagini BMP (*.bmp)"});
}

} // namespace

std::function<QString()> HostView::pictureFileHook;

HostView::HostView(HostDocument& document, ViewOwner& owner, HWND frame, QWidget* parent)
    : m_document(document),
      m_owner(owner),
      m_widget(new ViewWidget(*this, frame, parent)),
      m_length(document.GetLunghezza()),
      m_drawing(document) {
    m_widget->Open(*this);
    m_projection.SetScale(firstScale * CGrandezza::_LengthFactor(m_document.GetLunghezza(), Lunghezza::Metres));
    // What a window of diagrams begins with.
    for (const int kind : {CElementoSettings::V3, CElementoSettings::M2})
        GetTraveSettings().SetRisultato(kind, 1);
    m_document.AddObserver(this);
    SetDirection(Adv3d::Axonometry);
}

HostView::~HostView() {
    Close();
}

void HostView::Close() {
    if (m_closed)
        return;
    m_closed = true;
    m_document.RemoveObserver(this);
    m_vector = {};
    m_drawing.Stop();
    DestroyWindow();
    m_widget->Leave(); // the loop deletes it
}

CQuovarDoc* HostView::GetDocument() {
    return &m_document;
}

void HostView::StartDefinisciVettore(CString prompt, CString) {
    m_owner.PickingStarted(*this, prompt);
    m_vector = {};
    m_vector.active = true;
    m_vector.prompt = prompt;
    m_drawing.Stop();
    ShowPicking();
}

void HostView::StopDefinisciVettore() {
    if (!m_vector.active || !m_owner.PickingStops(*this))
        return;
    m_vector = {};
    ShowPicking();
}

void HostView::StartDrawing(Kind kind) {
    m_owner.Tell(m_drawing.Start(kind));
    m_widget->activateWindow(); // from a dialog too: the numbers that are typed next are nodes'
    m_widget->setFocus();
    ShowPicking();
}

void HostView::ShowPicking() {
    if (m_closed)
        return;
    if (AsksForNodes())
        m_widget->setCursor(Qt::CrossCursor);
    else
        m_widget->unsetCursor();
    m_widget->update();
    m_owner.ViewChanged(*this);
}

CElementoSettings& HostView::GetNodoSettings() {
    return m_projection.GetSettings(TipoElemento::Nodo);
}

CElementoSettings& HostView::GetTraveSettings() {
    return m_projection.GetSettings(TipoElemento::Trave);
}

CElementoSettings& HostView::GetSettoSettings() {
    return m_projection.GetSettings(TipoElemento::Setto);
}

void HostView::SetRectImmagine(int left, int top, int right, int bottom) {
    m_captureRect = CRect(left, top, right, bottom);
    m_captureRect.NormalizeRect();
}

// The application's window that holds the place: a dialog before the main window that it lies over, the active one
// before others; null for none.
static QWidget* WindowAround(const QRect& place) {
    const auto rank = [&place](const QWidget* window) {
        if (!window->isVisible() || window->windowType() == Qt::Popup || !window->geometry().contains(place))
            return 0;
        return 1 + (window->windowType() == Qt::Window ? 0 : 2) + (window->isActiveWindow() ? 1 : 0);
    };
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto best = std::max_element(windows.begin(), windows.end(),
                                       [&rank](const QWidget* a, const QWidget* b) { return rank(a) < rank(b); });
    return best == windows.end() || rank(*best) == 0 ? QApplication::topLevelAt(place.center()) : *best;
}

// What lies in the rectangle: of the application's own window there, which another program's may cover and a menu that
// has just closed may still be over, or of the screen.
QPixmap HostView::CapturedPicture() const {
    if (m_captureRect.IsRectEmpty())
        return m_widget->grab();
    const QRect place(m_captureRect.left, m_captureRect.top, m_captureRect.Width(), m_captureRect.Height());
    if (QWidget* window = WindowAround(place))
        return window->grab(QRect(window->mapFromGlobal(place.topLeft()), place.size()));
    QScreen* screen = m_widget->screen();
    return screen ? screen->grabWindow(0, place.x(), place.y(), place.width(), place.height()) : QPixmap();
}

// The picture goes to the clipboard, from where a report takes it, and to a file when the user names one.
void HostView::CatturaImmagine() {
    if (m_closed)
        return;
    const QPixmap picture = CapturedPicture();
    if (picture.isNull())
        return;
    QApplication::clipboard()->setPixmap(picture);
    const QString path = pictureFileHook ? pictureFileHook() : AskPictureFile(m_widget->QWidget::window());
    if (!path.isEmpty() && !picture.save(path))
        AfxMessageBox("Impossibile scrivere l'immagine \"" + platform::FromQString(path) + "\".",
                      MB_OK | MB_ICONEXCLAMATION);
}

void HostView::OnDocumentUpdate(CView* sender, long hint, CObject* pHint) {
    if (CQuovarGlobal::_GetInformazioniBase(hint) == MODIFICA_UNITA)
        ForgetPoints(); // they are of another unit
    FollowUnit();
    if (m_empty && m_document.GetSizeNodi() > 1)
        Fit();
    Redraw();
    RefreshGridDialog();
    m_owner.DocumentChanged(*this, sender, hint, pHint);
}

// What the window shows stays where it was.
void HostView::FollowUnit() {
    const Lunghezza former = std::exchange(m_length, m_document.GetLunghezza());
    if (former == m_length)
        return;
    const double factor = CGrandezza::_LengthFactor(former, m_length);
    m_projection.SetTarget(m_projection.GetTarget() * factor);
    m_projection.SetScale(m_projection.GetScale() / factor);
}

void HostView::Fit() {
    CFPoint minimum, maximum;
    if (GetBounds(m_document, minimum, maximum)) {
        FollowUnit(); // one point alone keeps the scale
        m_projection.FitToBounds(minimum, maximum);
        m_fitted = true;
        m_empty = m_document.GetSizeNodi() < 2;
    }
    Redraw();
}

void HostView::SetDirection(Adv3d::Direzione direction) {
    m_projection.SetDirection(direction);
    Fit();
}

void HostView::SetPerspective(bool perspective) {
    m_projection.SetPerspective(perspective);
    Redraw();
    m_owner.ViewChanged(*this);
}

void HostView::Orbit(int dx, int dy) {
    // About the world's vertical, so that columns stay upright on the screen.
    const double angle = -dx * degreesPerPixel * std::numbers::pi / 180;
    const double c = std::cos(angle), s = std::sin(angle);
    const auto turn = [c, s](const CFPoint& v) { return CFPoint(c * v.x - s * v.y, s * v.x + c * v.y, v.z); };
    m_projection.SetAxes(turn(m_projection.GetAxis(0)), turn(m_projection.GetAxis(1)));
    m_projection.vista_ruotax(dy * degreesPerPixel);
    Redraw();
}

void HostView::Pan(int dx, int dy) {
    m_fitted = false;
    m_projection.SetPan(m_projection.GetPanX() + dx, m_projection.GetPanY() + dy);
    Redraw();
}

void HostView::Zoom(double factor, CPoint at) {
    const double scale = m_projection.GetScale() * factor;
    if (!(scale > 1e-9) || scale > 1e9) // beyond, pixels no longer fit their numbers
        return;
    m_fitted = false;
    m_projection.Zoom(factor, at);
    Redraw();
}

void HostView::SetViewport(int width, int height) {
    const bool first = m_projection.GetViewport().IsRectEmpty();
    m_projection.SetViewport(CRect(0, 0, width, height));
    if (first || m_fitted)
        Fit();
    Redraw();
}

void HostView::SetFilter(const KindFilter& filter) {
    m_filter = filter;
    m_owner.ViewChanged(*this);
}

void HostView::SetShown(unsigned kind, unsigned item, bool shown) {
    m_projection.GetSettings(kind).SetItem(item, shown);
    Redraw();
    m_owner.ViewChanged(*this);
}

bool HostView::IsShown(unsigned kind, unsigned item) {
    return m_projection.GetSettings(kind).IsItem(item);
}

void HostView::SetResultShown(int kind, bool shown) {
    GetTraveSettings().SetRisultato(kind, shown);
    m_owner.ResultShown(*this, kind, shown);
    Redraw();
    m_owner.ViewChanged(*this);
}

void HostView::ClickAt(CPoint at, SelectMode mode) {
    if (AsksForNodes()) {
        if (const std::optional<Snap> snap = SnapAt(at))
            snap->node ? Pick(*snap->node) : PickForTool(snap->point);
        return;
    }
    std::vector<CElemento*> hit;
    if (CElemento* object = ObjectAt(m_document, m_projection, at, m_filter))
        hit.push_back(object);
    Select(hit, mode);
}

void HostView::SelectRectangle(CPoint a, CPoint b, SelectMode mode) {
    Select(ObjectsIn(m_document, m_projection, a, b, m_filter), mode);
}

bool HostView::ActAt(CElemento& object, SelectMode mode) {
    if (!AsksForNodes()) {
        Select({&object}, mode);
        return true;
    }
    auto* node = DYNAMIC_DOWNCAST(CNodo, &object);
    if (node)
        Pick(*node);
    return node;
}

void HostView::Select(const std::vector<CElemento*>& found, SelectMode mode) {
    HostSelection& selection = m_document.Selection();
    std::vector<CElemento*> leaving;
    if (mode == SelectMode::Replace)
        selection.Clear();
    else if (mode == SelectMode::Toggle)
        std::copy_if(found.begin(), found.end(), std::back_inserter(leaving),
                     [](CElemento* each) { return each->IsSelect(); });
    if (leaving.empty()) {
        selection.Add(found);
        return;
    }
    std::vector<CElemento*> coming;
    std::copy_if(found.begin(), found.end(), std::back_inserter(coming),
                 [](CElemento* each) { return !each->IsSelect(); });
    selection.Remove(leaving);
    selection.Add(coming);
}

void HostView::Pick(CNodo& node) {
    if (!m_drawing.IsActive())
        return PickForTool(*node.GetPunto());
    if (const CString refused = m_drawing.Take(node); !refused.IsEmpty()) // otherwise the step tells
        m_owner.Tell(refused);
    ShowPicking();
}

void HostView::PickForTool(const CFPoint& point) {
    // The state moves on before the dialog hears of the point: it may restart the mode for the next one.
    const bool second = m_vector.secondIsNext;
    m_vector.secondIsNext = !second;
    m_vector.vector.reset();
    if (second && m_vector.from && m_vector.prompt.IsEmpty())
        m_vector.vector.emplace(*m_vector.from, point);
    m_vector.from = second ? std::optional<CFPoint>() : point;
    m_owner.PointPicked(*this, point, second);
    ShowPicking();
}

void HostView::BreakOff() {
    if (m_drawing.IsActive()) {
        m_drawing.StepBack();
    } else if (!m_owner.IsPicking(*this)) {
        StopDefinisciVettore();
        return;
    } else {
        ForgetPoints();
    }
    ShowPicking();
}

void HostView::ForgetPoints() {
    m_vector.secondIsNext = false;
    m_vector.from.reset();
    m_vector.vector.reset();
}

CNodo* HostView::SnapNode(CPoint at) {
    return NearestNode(m_document, m_projection, at, pickRadius);
}

CString HostView::Describe(CElemento& object) {
    CString text;
    if (auto* node = DYNAMIC_DOWNCAST(CNodo, &object)) {
        const CFPoint& point = *node->GetPunto();
        text.Format("Nodo %d   x %.3f   y %.3f   z %.3f", node->GetID(), point.x, point.y, point.z);
    } else {
        object.GetTextInfo(text);
    }
    return text;
}

CString HostView::Describe(CPoint at) {
    const std::optional<Snap> snap = SnapAt(at);
    if (snap && snap->node)
        return Describe(*snap->node);
    const CFPoint point = snap ? snap->point : m_projection.Unproject(at, m_projection.GetTarget());
    CString text;
    text.Format("%sx %.3f   y %.3f   z %.3f", CString(snap ? "Griglia   " : ""), point.x, point.y, point.z);
    return text;
}

CString HostView::Prompt() const {
    if (m_drawing.IsActive())
        return m_drawing.Prompt();
    if (!m_vector.active)
        return {};
    if (!m_vector.prompt.IsEmpty())
        return m_vector.prompt;
    if (m_vector.secondIsNext)
        return "Fare clic sul secondo nodo del vettore (Esc per ricominciare).";
    const CString first = "Fare clic sul primo nodo del vettore.";
    if (!m_vector.vector)
        return first;
    const CFPoint along = m_vector.vector->second - m_vector.vector->first;
    CString measured;
    measured.Format("dx %.10g   dy %.10g   dz %.10g %s   ", along.x, along.y, along.z,
                    static_cast<LPCTSTR>(CGrandezza::_GetStringLunghezza(m_document.GetLunghezza())));
    return measured + first;
}

void HostView::Redraw() {
    if (!m_closed)
        m_widget->Outdate();
}

// The window was invalidated: the kept picture does not count.
void HostView::OnPaint() {
    Redraw();
}

// Sent from inside the dialog's OK or Cancel: its window goes now, the object when those handlers have returned.
LRESULT HostView::OnFineDialogo(WPARAM wParam, LPARAM lParam) {
    if (wParam == FINEDIALOGO_CONFERMATO || wParam == FINEDIALOGO_ANNULLATO)
        m_owner.EndTool(*this, reinterpret_cast<const CDialogDocument*>(lParam));
    return 0;
}

} // namespace host
