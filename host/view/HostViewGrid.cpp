// The part of the view that deals with the construction lines.
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/generation/DialogGrigliaNodi.h"
#include "host/document/HostDocument.h"
#include "host/view/GridSight.h"
#include "host/view/HostView.h"
#include "host/view/ViewOwner.h"
#include "model/element/Nodo.h"
#include "platform/window/Application.h"

#include <QScopedValueRollback>

#include <cmath>
#include <utility>

namespace host {

namespace {

// Calls the function with each value of the grid and the dialog's field for it.
template <class Grid, class Dialog, class Function>
void ForEachField(Grid& grid, Dialog& dialog, const Function& function) {
    function(grid.plane, dialog.m_nPiano);
    function(grid.tilt, dialog.m_dInclinazione);
    function(grid.origin.x, dialog.m_dOrigineX);
    function(grid.origin.y, dialog.m_dOrigineY);
    function(grid.origin.z, dialog.m_dOrigineZ);
    function(grid.lines[0].negative, dialog.m_nNegX);
    function(grid.lines[0].positive, dialog.m_nPosX);
    function(grid.lines[0].spacing, dialog.m_dPassoX);
    function(grid.lines[0].angle, dialog.m_dAngoloX);
    function(grid.lines[1].negative, dialog.m_nNegY);
    function(grid.lines[1].positive, dialog.m_nPosY);
    function(grid.lines[1].spacing, dialog.m_dPassoY);
    function(grid.lines[1].angle, dialog.m_dAngoloY);
}

void WriteFields(const ConstructionGrid& grid, CDialogGrigliaNodi& dialog) {
    ForEachField(grid, dialog, [](const auto& value, auto& field) { field = value; });
}

// What the fields say of a grid.
ConstructionGrid Read(const CDialogGrigliaNodi& dialog, ConstructionGrid grid) {
    ForEachField(grid, dialog, [](auto& value, const auto& field) { value = field; });
    return grid;
}

} // namespace

ConstructionGrid HostView::Grid() const {
    return m_document.Data().Grid().In(m_document.GetLunghezza());
}

bool HostView::IsGridShown() const {
    return m_document.Data().Grid().shown;
}

void HostView::ShowGrid(bool shown) {
    ConstructionGrid grid = m_document.Data().Grid();
    grid.shown = shown;
    SetGrid(grid);
}

void HostView::SetGrid(const ConstructionGrid& grid) {
    if (grid == m_document.Data().Grid())
        return;
    ConstructionGrid former = std::exchange(m_document.Data().Grid(), grid);
    former.shown = grid.shown;
    if (!(former == grid)) // to look at them, or not, is no work that is to be saved
        m_document.SetModifiedFlag();
    m_document.UpdateAllViews(nullptr, MODIFICA_NESSUNA);
}

bool HostView::EditGrid(CDialogGrigliaNodi& dialog) {
    WriteFields(Grid(), dialog);
    if (!dialog.Create(this))
        return false;
    m_gridDialog = &dialog;
    m_dialogGrid = Grid();
    ShowGrid(true);
    return true;
}

void HostView::DialogEnds(const CDialog& dialog) {
    if (m_gridDialog == &dialog)
        m_gridDialog = nullptr;
}

// Another view's dialog, or a change of units, may have changed what this one shows.
void HostView::RefreshGridDialog() {
    const ConstructionGrid grid = Grid();
    m_dialogGrid.shown = grid.shown;
    if (!m_gridDialog || m_readingGrid || m_dialogGrid == grid)
        return;
    m_dialogGrid = grid;
    WriteFields(grid, *m_gridDialog);
    m_gridDialog->UpdateData(FALSE);
    m_gridDialog->SetModified(0);
}

// The dialog leaves reading its controls to us. Meanwhile a message may be shown, which takes the focus from a control,
// which says that something may have changed.
LRESULT HostView::OnGridChanged(WPARAM, LPARAM) {
    if (!m_gridDialog || m_readingGrid)
        return 0;
    const QScopedValueRollback<bool> reading(m_readingGrid, true);
    if (!m_gridDialog->UpdateData(TRUE) || !m_gridDialog)
        return 0;
    ConstructionGrid grid = Read(*m_gridDialog, Grid());
    if (grid == Grid()) // leaving a field unchanged does not show what the user has hidden
        return 0;
    grid.shown = true;
    if (grid.IsUsable())
        SetGrid(m_dialogGrid = grid);
    else
        AfxMessageBox("Le due direzioni della griglia coincidono, o la griglia è troppo grande: resta com'era."_t);
    return 0;
}

LRESULT HostView::OnGridDone(WPARAM, LPARAM) {
    m_gridDialog = nullptr;
    return 0;
}

std::optional<CFPoint> HostView::SnapCrossing(CPoint at) const {
    if (!IsGridShown())
        return std::nullopt;
    return GridSight(Grid(), m_projection).Nearest(at, pickRadius);
}

std::optional<HostView::Snap> HostView::SnapAt(CPoint at) {
    CNodo* node = SnapNode(at);
    const bool onlyNodes = m_drawing.IsActive() || (m_vector.active && m_owner.PicksNodesOnly(*this));
    const std::optional<CFPoint> crossing = onlyNodes ? std::nullopt : SnapCrossing(at);
    if (!node && !crossing)
        return std::nullopt;
    const auto distance = [&](const CFPoint& point) {
        const Adv3d::Punto seen = m_projection.Project(point);
        return std::hypot(seen.x - at.x, seen.y - at.y);
    };
    // On a crossing where a node stands, the node it is.
    if (node && (!crossing || distance(*node->GetPunto()) <= distance(*crossing) + 1))
        return Snap{*node->GetPunto(), node};
    return Snap{*crossing, nullptr};
}

void HostView::DoubleClickAt(CPoint at) {
    const std::optional<Snap> snap = SnapAt(at);
    if (snap && !snap->node) {
        CFPoint place = snap->point;
        const UndoStep step(m_document.Undo(), "Aggiungi nodo");
        m_document.AddNodo(place, nullptr, 1);
    } else if (CElemento* hit = ObjectAt(m_document, m_projection, at, m_filter)) {
        m_owner.ShowProperties(*hit);
    } else {
        Fit();
    }
}

} // namespace host
