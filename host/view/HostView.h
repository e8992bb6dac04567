// The 3D structure view: what it shows, what the user selects in it, and the points picked for its tool dialog.
#pragma once

#include "dialogs/frame/host/QuovarView.h"
#include "host/document/ConstructionGrid.h"
#include "host/document/DocumentObserver.h"
#include "host/view/ElementDrawing.h"
#include "host/view/Picking.h"
#include "model/view/Adv3d.h"
#include "platform/window/MessageMap.h"

#include <QPixmap>

#include <functional>
#include <optional>
#include <utility>

class CDialog;
class CDialogGrigliaNodi;
class QWidget;

namespace host {

class HostDocument;
class ViewOwner;
class ViewWidget;

// Picking of points for a tool dialog. Picks come in pairs; starting the mode makes the next one a first.
struct VectorDefinition {
    bool active = false;
    bool secondIsNext = false;
    CString prompt;              // the dialog's instruction; may be empty
    std::optional<CFPoint> from; // the first point of the pair, while the second is awaited
    // The last pair, until the next pick, where the dialog asked for vectors in words of the view.
    std::optional<std::pair<CFPoint, CFPoint>> vector;
};

class HostView final : public CQuovarView, public DocumentObserver {
    DECLARE_DYNAMIC(HostView)

  public:
    // The window is a child of `parent`; its messages' parent is `frame`. Document and owner outlive the view's Close.
    HostView(HostDocument& document, ViewOwner& owner, HWND frame, QWidget* parent);
    ~HostView() override;

    // Ends the window and leaves the document; nothing but the destructor may follow. The open tool dialog must have
    // been told before.
    void Close();
    bool IsClosed() const { return m_closed; }

    ViewWidget& Widget() const { return *m_widget; }
    HostDocument& Document() const { return m_document; }
    ViewOwner& Owner() const { return m_owner; }
    Adv3d& Vista() { return m_projection; }

    // ---- What the dialogs use; see CQuovarView.
    CQuovarDoc* GetDocument() override;
    void StartDefinisciVettore(CString prompt, CString prompt2) override;
    void StopDefinisciVettore() override;
    int IsDefinisciVettore() override { return m_vector.active; }
    int IsSelectNodi() override { return m_filter.nodes; }
    int IsSelectTravi() override { return m_filter.beams; }
    int IsSelectAste() override { return m_filter.trusses; }
    int IsSelectSetti() override { return m_filter.walls; }
    int IsSelectSolai() override { return m_filter.slabs; }
    int IsSelectElementi() override { return m_filter.AllElements(); }
    CElementoSettings& GetNodoSettings() override;
    CElementoSettings& GetTraveSettings() override;
    CElementoSettings& GetSettoSettings() override;
    // Results and design of walls are not computed yet, so there is nothing of them to show.
    int IsDrawRisultatoSetti() override { return 0; }
    int IsDrawProgettoSetti() override { return 0; }
    int IsDrawPressioneTerreno() override { return 0; }
    int GetProgettoSetti() override { return 0; }
    Adv3d* GetVista() override { return &m_projection; }
    void SetRectImmagine(int left, int top, int right, int bottom) override;
    void CatturaImmagine() override;
    // Stands for the user who names the captured picture's file while it is set; an empty path is none.
    static std::function<QString()> pictureFileHook;

    void OnDocumentUpdate(CView* sender, long hint, CObject* pHint) override;

    // ---- Camera. Points and distances in pixels.
    void Fit();
    void SetDirection(Adv3d::Direzione direction);
    void SetPerspective(bool perspective);
    // Turns about the world's vertical and the screen's horizontal through the middle of the model.
    void Orbit(int dx, int dy);
    void Pan(int dx, int dy);
    void Zoom(double factor, CPoint at);
    void SetViewport(int width, int height);

    // ---- Display and filters.
    const KindFilter& Filter() const { return m_filter; }
    void SetFilter(const KindFilter& filter);
    // A CElementoSettings::Item of one kind (code of TipoElemento), on or off.
    void SetShown(unsigned kind, unsigned item, bool shown);
    bool IsShown(unsigned kind, unsigned item);
    // A result kind of beams, on or off, in the view and in the windows beside it.
    void SetResultShown(int kind, bool shown);

    // ---- The construction lines, which all views of the document show.
    ConstructionGrid Grid() const; // in the document's unit
    bool IsGridShown() const;
    void ShowGrid(bool shown);
    // Opens the dialog on them; they follow it until its window goes, and stay then. False when there is no window.
    bool EditGrid(CDialogGrigliaNodi& dialog);
    // The application ends a dialog beside the view: what the going window still says is not listened to.
    void DialogEnds(const CDialog& dialog);

    // ---- What the user does with the pointer.
    // Where nodes are asked for the click picks one; otherwise it selects.
    void ClickAt(CPoint at, SelectMode mode);
    void SelectRectangle(CPoint a, CPoint b, SelectMode mode);
    // What a click on the object would do. False for one that is not asked for.
    bool ActAt(CElemento& object, SelectMode mode);
    // A tool dialog or a drawing command waits for nodes; the one that began last gets them.
    bool AsksForNodes() const { return m_vector.active || m_drawing.IsActive(); }
    // Makes elements of the kind through the nodes that are picked from now on.
    void StartDrawing(Kind kind);
    // The user's Escape: what a drawing picked is let go, then the drawing ends; a pair begins again with its first
    // point, a dialog that asks for single ones goes on asking. Without a dialog that picks the mode ends.
    void BreakOff();
    // The node that a pick at the point would take; null when none is near.
    CNodo* SnapNode(CPoint at);
    // What a pick at the point would take: a node, or a crossing of construction lines that is nearer.
    struct Snap {
        CFPoint point;
        CNodo* node; // null for a crossing
    };
    std::optional<Snap> SnapAt(CPoint at);
    // Makes a node on a crossing, tells about an object, or fits the model into the window.
    void DoubleClickAt(CPoint at);
    CString Describe(CPoint at); // for the status bar: coordinates, of the node where one is near
    static CString Describe(CElemento& object);

    const VectorDefinition& Vector() const { return m_vector; }
    const ElementDrawing& Drawing() const { return m_drawing; }
    CString Prompt() const; // the instruction for the next pick, in words of the view where the dialog gave none

  private:
    QPixmap CapturedPicture() const;
    void Pick(CNodo& node);
    void PickForTool(const CFPoint& point);
    void Select(const std::vector<CElemento*>& found, SelectMode mode);
    void FollowUnit();   // of length, which may have changed
    void ForgetPoints(); // that were picked
    void ShowPicking();  // whether nodes are asked for, and what was picked
    void Redraw();       // the picture is out of date
    void OnPaint();
    LRESULT OnFineDialogo(WPARAM wParam, LPARAM lParam);
    LRESULT OnGridChanged(WPARAM wParam, LPARAM lParam);
    LRESULT OnGridDone(WPARAM wParam, LPARAM lParam);
    void SetGrid(const ConstructionGrid& grid);
    void RefreshGridDialog();
    std::optional<CFPoint> SnapCrossing(CPoint at) const;

    DECLARE_MESSAGE_MAP()

    HostDocument& m_document;
    ViewOwner& m_owner;
    ViewWidget* m_widget; // owned by its parent widget
    Adv3d m_projection;
    Lunghezza m_length; // of the projection
    KindFilter m_filter;
    VectorDefinition m_vector;
    CDialogGrigliaNodi* m_gridDialog = nullptr; // open on the construction lines; not owned
    ConstructionGrid m_dialogGrid;              // of that dialog, as far as it was valid
    bool m_readingGrid = false;
    ElementDrawing m_drawing;
    CRect m_captureRect; // screen; empty captures the view
    bool m_closed = false;
    bool m_fitted = false; // the user has not moved away from the whole model, which then follows the window's size
    bool m_empty = true;   // nothing was there to fit: the first nodes are fitted when they come
};

} // namespace host
