// The user's selecting in list boxes.
#include "platform/private/ListBoxPeer.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace platform {

namespace {

constexpr int DragScrollPeriod = 50; // milliseconds
constexpr int TypeAheadPause = 1000; // milliseconds

} // namespace

void ListBoxPeer::tell(UINT code) {
    if (WindowPeer::style & LBS_NOTIFY)
        notifyParent(code);
}

void ListBoxPeer::selectOnly(int first, int last) {
    setSelected(0, count() - 1, false);
    setSelected(std::min(first, last), std::max(first, last), true);
}

bool ListBoxPeer::pickByMouse(int index, Qt::KeyboardModifiers modifiers) {
    if (!multiple()) {
        select(index);
        return true;
    }
    const bool control = modifiers & Qt::ControlModifier;
    const bool shift = modifiers & Qt::ShiftModifier;
    m_dragSelects = true;
    m_dragKeeps = control || !extended();
    if (extended() && shift && m_anchor >= 0) {
        if (!control)
            setSelected(0, count() - 1, false);
        setSelected(std::min(m_anchor, index), std::max(m_anchor, index), true);
    } else if (!extended() || control) {
        m_dragSelects = !row(index)->selected;
        setSelected(index, index, m_dragSelects);
        m_anchor = index;
    } else {
        selectOnly(index, index);
        m_anchor = index;
    }
    setCaret(index, true);
    return true;
}

bool ListBoxPeer::pickByKey(int index, Qt::KeyboardModifiers modifiers) {
    index = std::clamp(index, 0, count() - 1);
    if (!multiple()) {
        if (index == m_caret && row(index)->selected)
            return false;
        select(index);
        return true;
    }
    // Moving in a box with multiple selection selects nothing; nor does it with Ctrl in an extended one.
    if (!extended() || (modifiers & Qt::ControlModifier)) {
        setCaret(index, true);
        return false;
    }
    if (!(modifiers & Qt::ShiftModifier) || m_anchor < 0)
        m_anchor = index;
    selectOnly(m_anchor, index);
    setCaret(index, true);
    return true;
}

bool ListBoxPeer::pressSpace(Qt::KeyboardModifiers modifiers) {
    const Row* at = row(m_caret);
    if (!at)
        return false;
    if (!multiple() && at->selected)
        return false;
    if (!multiple())
        select(m_caret);
    else if (!extended() || (modifiers & Qt::ControlModifier))
        setSelected(m_caret, m_caret, !at->selected);
    else
        selectOnly(modifiers & Qt::ShiftModifier && m_anchor >= 0 ? m_anchor : m_caret, m_caret);
    if (!(modifiers & Qt::ShiftModifier))
        m_anchor = m_caret;
    return true;
}

bool ListBoxPeer::typingAhead() const {
    return m_typedAt.isValid() && m_typedAt.elapsed() <= TypeAheadPause;
}

// Letters that follow each other quickly make one prefix.
int ListBoxPeer::typeAhead(const QString& typed) {
    if (!typingAhead())
        m_typed.clear();
    m_typedAt.start();
    m_typed += typed;
    const bool again = m_typed.size() == 1;
    return find(again ? m_caret : m_caret - 1, fromQString(m_typed), false);
}

void ListBoxPeer::keyPressEvent(QKeyEvent* event) {
    if (count() == 0 || (WindowPeer::style & LBS_NOSEL))
        return;
    const int page = std::max(1, pageRows() - 1);
    bool changed = false;
    // In a box with single selection a blank has nothing to select; it may stand inside the text that is looked for.
    const bool blankInText = event->key() == Qt::Key_Space && !multiple() && typingAhead();
    switch (blankInText ? 0 : event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        changed = pickByKey(m_caret - 1, event->modifiers());
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        changed = pickByKey(m_caret + 1, event->modifiers());
        break;
    case Qt::Key_PageUp:
        changed = pickByKey(m_caret - page, event->modifiers());
        break;
    case Qt::Key_PageDown:
        changed = pickByKey(m_caret + page, event->modifiers());
        break;
    case Qt::Key_Home:
        changed = pickByKey(0, event->modifiers());
        break;
    case Qt::Key_End:
        changed = pickByKey(count() - 1, event->modifiers());
        break;
    case Qt::Key_Space:
        changed = pressSpace(event->modifiers());
        break;
    default:
        if (!event->text().isEmpty() && event->text().at(0).isPrint())
            if (const int found = typeAhead(event->text()); found >= 0)
                changed = pickByKey(found, Qt::NoModifier);
    }
    if (changed)
        tell(LBN_SELCHANGE);
}

void ListBoxPeer::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || (WindowPeer::style & LBS_NOSEL))
        return;
    const int index = rowAt(static_cast<int>(event->position().y()));
    if (!row(index))
        return;
    m_typedAt.invalidate();
    m_dragging = pickByMouse(index, event->modifiers());
}

void ListBoxPeer::dragTo(int y) {
    const int index = std::clamp(rowAt(y), 0, count() - 1);
    if (index == m_caret)
        return;
    if (!multiple()) {
        select(index);
        return;
    }
    if (!extended()) // each row is toggled by its own click
        return;
    if (!m_dragKeeps)
        selectOnly(m_anchor, index);
    else
        setSelected(std::min(m_anchor, index), std::max(m_anchor, index), m_dragSelects);
    setCaret(index, true);
}

void ListBoxPeer::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging || !(event->buttons() & Qt::LeftButton) || count() == 0)
        return;
    m_dragY = static_cast<int>(event->position().y());
    const bool outside = m_dragY < 0 || m_dragY >= viewport()->height();
    if (!outside)
        m_dragScroll.stop();
    else if (!m_dragScroll.isActive())
        m_dragScroll.start(DragScrollPeriod, this);
    dragTo(m_dragY);
}

void ListBoxPeer::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_dragScroll.timerId()) {
        HostedScrollArea<QAbstractScrollArea>::timerEvent(event);
        return;
    }
    if (m_dragging && count() > 0)
        dragTo(m_dragY);
    else
        m_dragScroll.stop();
}

void ListBoxPeer::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_dragging)
        return;
    m_dragging = false;
    m_dragScroll.stop();
    tell(LBN_SELCHANGE);
}

// The first click of the two has told LBN_SELCHANGE.
void ListBoxPeer::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || (WindowPeer::style & LBS_NOSEL))
        return;
    if (row(rowAt(static_cast<int>(event->position().y()))))
        tell(LBN_DBLCLK);
}

} // namespace platform
