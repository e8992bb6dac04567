// The user's selecting in list views.
#include "platform/private/peers/ListCtrlPeer.h"

#include <algorithm>
#include <vector>

namespace platform {

void ListCtrlControl::SelectRows(int first, int last, bool select, bool only) {
    first = std::max(first, 0);
    last = std::min(last, m_model.Count() - 1);
    std::vector<int> lost;
    std::vector<int> got;
    // The selected ones are walked, not all rows: callers step through a hundred thousand of them.
    const bool few = !select && last - first >= m_model.SelectedCount();
    if (only || few)
        for (int row = -1, left = m_model.SelectedCount(); left > 0; --left) {
            row = m_model.NextSelected(row);
            const bool inside = row >= first && row <= last;
            if (inside ? !select : only)
                lost.push_back(row);
        }
    for (int row = first; !few && row <= last; ++row)
        if (m_model.Selected(row) != select)
            (select ? got : lost).push_back(row);
    for (const int row : lost)
        m_model.SetSelected(row, false);
    for (const int row : got)
        m_model.SetSelected(row, true);
    if (lost.empty() && got.empty())
        return;
    View().viewport()->update();
    const QPointer<QWidget> alive = Peer().widget;
    TellRows(lost, LVIS_SELECTED, 0);
    if (alive)
        TellRows(got, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

// A handler may end the window, or the rows.
void ListCtrlControl::TellRows(const std::vector<int>& rows, UINT before, UINT after) {
    const QPointer<QWidget> alive = Peer().widget;
    for (const int row : rows) {
        if (!alive || Peer().destroyed || !m_model.RowAt(row))
            return;
        NMLISTVIEW change;
        change.iItem = row;
        change.uOldState = before;
        change.uNewState = after;
        change.uChanged = LVIF_STATE;
        Peer().NotifyParent(change.hdr, LVN_ITEMCHANGED);
    }
}

void ListCtrlControl::ExtendTo(int row, bool only) {
    SelectRows(std::min(mark, row), std::max(mark, row), true, only);
}

void ListCtrlControl::PickByMouse(int row, Qt::KeyboardModifiers modifiers) {
    const bool control = !Single() && (modifiers & Qt::ControlModifier);
    if (!Single() && (modifiers & Qt::ShiftModifier) && mark >= 0) {
        ExtendTo(row, !control);
        return;
    }
    mark = row;
    SelectRows(row, row, !control || !m_model.Selected(row), !control);
}

void ListCtrlControl::PickByKey(int former, const QKeyEvent& event) {
    const int row = View().currentIndex().row();
    // A key that has nowhere to go still selects the row that it would stop at.
    const bool stopped = event.key() >= Qt::Key_Home && event.key() <= Qt::Key_PageDown && !m_model.Selected(row);
    if (row < 0 || (row == former && !stopped))
        return;
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    if (!Single() && !shift && (event.modifiers() & Qt::ControlModifier))
        return; // moves the focus rectangle alone
    if (!Single() && shift && mark >= 0) {
        ExtendTo(row, true);
        return;
    }
    mark = row;
    SelectRows(row, row, true, true);
}

bool ListCtrlControl::SelectByKey(const QKeyEvent& event) {
    const int row = View().currentIndex().row();
    const bool control = event.modifiers() & Qt::ControlModifier;
    if (event.key() == Qt::Key_A && control && !Single()) {
        SelectRows(0, m_model.Count() - 1, true, false);
        return true;
    }
    if (event.key() != Qt::Key_Space || row < 0)
        return false;
    PickByMouse(row, event.modifiers());
    return true;
}

} // namespace platform
