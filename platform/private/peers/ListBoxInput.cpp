// The user's selecting in list boxes.
#include "platform/private/peers/Controls.h"
#include "platform/private/peers/ListBoxPeer.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace platform {

namespace {

constexpr int dragScrollPeriod = 50; // milliseconds
constexpr int typeAheadPause = 1000; // milliseconds

} // namespace

void ListBoxPeer::Tell(UINT code) {
    if (WindowPeer::style & LBS_NOTIFY)
        NotifyParent(code);
}

void ListBoxPeer::SelectOnly(int first, int last) {
    SetSelected(0, Count() - 1, false);
    SetSelected(std::min(first, last), std::max(first, last), true);
}

bool ListBoxPeer::PickByMouse(int index, Qt::KeyboardModifiers modifiers) {
    if (!Multiple()) {
        Select(index);
        return true;
    }
    const bool control = modifiers & Qt::ControlModifier;
    const bool shift = modifiers & Qt::ShiftModifier;
    m_dragSelects = true;
    m_dragKeeps = control || !Extended();
    if (Extended() && shift && m_anchor >= 0) {
        if (!control)
            SetSelected(0, Count() - 1, false);
        SetSelected(std::min(m_anchor, index), std::max(m_anchor, index), true);
    } else if (!Extended() || control) {
        m_dragSelects = !RowOf(index)->selected;
        SetSelected(index, index, m_dragSelects);
        m_anchor = index;
    } else {
        SelectOnly(index, index);
        m_anchor = index;
    }
    SetCaret(index, true);
    return true;
}

bool ListBoxPeer::PickByKey(int index, Qt::KeyboardModifiers modifiers) {
    index = std::clamp(index, 0, Count() - 1);
    if (!Multiple()) {
        if (index == m_caret && RowOf(index)->selected)
            return false;
        Select(index);
        return true;
    }
    // Moving in a box with multiple selection selects nothing; nor does it with Ctrl in an extended one.
    if (!Extended() || (modifiers & Qt::ControlModifier)) {
        SetCaret(index, true);
        return false;
    }
    if (!(modifiers & Qt::ShiftModifier) || m_anchor < 0)
        m_anchor = index;
    SelectOnly(m_anchor, index);
    SetCaret(index, true);
    return true;
}

bool ListBoxPeer::PressSpace(Qt::KeyboardModifiers modifiers) {
    const Row* at = RowOf(m_caret);
    if (!at)
        return false;
    if (!Multiple() && at->selected)
        return false;
    if (!Multiple())
        Select(m_caret);
    else if (!Extended() || (modifiers & Qt::ControlModifier))
        SetSelected(m_caret, m_caret, !at->selected);
    else
        SelectOnly(modifiers & Qt::ShiftModifier && m_anchor >= 0 ? m_anchor : m_caret, m_caret);
    if (!(modifiers & Qt::ShiftModifier))
        m_anchor = m_caret;
    return true;
}

bool ListBoxPeer::TypingAhead() const {
    return m_typedAt.isValid() && m_typedAt.elapsed() <= typeAheadPause;
}

// Letters that follow each other quickly make one prefix.
int ListBoxPeer::TypeAhead(const QString& typed) {
    if (!TypingAhead())
        m_typed.clear();
    m_typedAt.start();
    m_typed += typed;
    const bool again = m_typed.size() == 1;
    return Find(again ? m_caret : m_caret - 1, FromQString(m_typed));
}

void ListBoxPeer::keyPressEvent(QKeyEvent* event) {
    if (Count() == 0 || (WindowPeer::style & LBS_NOSEL))
        return;
    const int page = std::max(1, PageRows() - 1);
    bool changed = false;
    // In a box with single selection a blank has nothing to select; it may stand inside the text that is looked for.
    const bool blankInText = event->key() == Qt::Key_Space && !Multiple() && TypingAhead();
    switch (blankInText ? 0 : event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        changed = PickByKey(m_caret - 1, event->modifiers());
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        changed = PickByKey(m_caret + 1, event->modifiers());
        break;
    case Qt::Key_PageUp:
        changed = PickByKey(m_caret - page, event->modifiers());
        break;
    case Qt::Key_PageDown:
        changed = PickByKey(m_caret + page, event->modifiers());
        break;
    case Qt::Key_Home:
        changed = PickByKey(0, event->modifiers());
        break;
    case Qt::Key_End:
        changed = PickByKey(Count() - 1, event->modifiers());
        break;
    case Qt::Key_Space:
        changed = PressSpace(event->modifiers());
        break;
    default:
        if (!event->text().isEmpty() && event->text().at(0).isPrint())
            if (const int found = TypeAhead(event->text()); found >= 0)
                changed = PickByKey(found, Qt::NoModifier);
    }
    if (changed)
        Tell(LBN_SELCHANGE);
}

void ListBoxPeer::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || (WindowPeer::style & LBS_NOSEL) || !StillPressed(*event))
        return;
    const int index = RowAt(static_cast<int>(event->position().y()));
    if (!RowOf(index))
        return;
    m_typedAt.invalidate();
    m_dragging = PickByMouse(index, event->modifiers());
}

void ListBoxPeer::DragTo(int y) {
    const int index = std::clamp(RowAt(y), 0, Count() - 1);
    if (index == m_caret)
        return;
    if (!Multiple()) {
        Select(index);
        return;
    }
    if (!Extended()) // each row is toggled by its own click
        return;
    if (!m_dragKeeps)
        SelectOnly(m_anchor, index);
    else
        SetSelected(std::min(m_anchor, index), std::max(m_anchor, index), m_dragSelects);
    SetCaret(index, true);
}

void ListBoxPeer::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging || !(event->buttons() & Qt::LeftButton) || Count() == 0)
        return;
    m_dragY = static_cast<int>(event->position().y());
    const bool outside = m_dragY < 0 || m_dragY >= viewport()->height();
    if (!outside)
        m_dragScroll.stop();
    else if (!m_dragScroll.isActive())
        m_dragScroll.start(dragScrollPeriod, this);
    DragTo(m_dragY);
}

void ListBoxPeer::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_dragScroll.timerId()) {
        HostedScrollArea<QAbstractScrollArea>::timerEvent(event);
        return;
    }
    if (m_dragging && Count() > 0)
        DragTo(m_dragY);
    else
        m_dragScroll.stop();
}

void ListBoxPeer::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_dragging)
        return;
    m_dragging = false;
    m_dragScroll.stop();
    Tell(LBN_SELCHANGE);
}

// The first click of the two has told LBN_SELCHANGE.
void ListBoxPeer::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || (WindowPeer::style & LBS_NOSEL))
        return;
    if (RowOf(RowAt(static_cast<int>(event->position().y()))))
        Tell(LBN_DBLCLK);
}

} // namespace platform
