// List boxes. Rows are plain records: no toolkit object stands behind one, nothing is announced for one, and only those
// on the screen are converted and painted, so that a hundred thousand of them cost what their texts cost.
#pragma once

#include "platform/private/peers/Hosted.h"
#include "platform/private/peers/RowStore.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>

namespace platform {

class ListBoxPeer final : public HostedScrollArea<QAbstractScrollArea> {
  public:
    struct Row {
        CString text;
        DWORD_PTR data = 0;
        bool selected = false;
    };

    ListBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer);

    UINT DialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> MakeObject() const override;
    void FocusChanged(bool gained) override;
    void StyleChanged() override;
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    bool Multiple() const { return WindowPeer::style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL); }
    bool Extended() const { return WindowPeer::style & LBS_EXTENDEDSEL; }
    int Count() const { return m_rows.Count(); }
    Row* RowOf(int index) { return m_rows.Has(index) ? &m_rows.At(index) : nullptr; }

    int Add(const CString& text); // at the end, or in its sorted place
    bool Remove(int index);
    void Reset();
    int Find(int startAfter, const CString& prefix) const; // without regard to case, going round; -1 for none

    // The program's selecting, which tells nobody.
    int Current() const { return m_current; } // single selection: the selected row, -1 for none
    void Select(int index);                   // single selection, -1 for none
    void SetSelected(int first, int last, bool selected);
    int SelectedCount() const { return m_selectedCount; }
    int Caret() const { return m_caret; }
    void SetCaret(int index, bool scroll);
    void SetAnchor(int index) { m_anchor = index; }

    int RowHeight() const;
    QRect RowRect(int index);
    int RowAt(int y); // may lie outside the rows
    int TopRow();
    void SetTopRow(int index);
    void SetExtent(int width);
    void ShowRow(int index);

  protected:
    bool viewportEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    void RowsChanged();
    void Arrange(); // the scroll bars, once after any number of changed rows
    void MoveBar(); // the scroll bar to where setTopRow wants it
    void RepaintSoon();
    int PageRows() const;
    void PaintRow(QPainter& painter, const Row& row, const QRect& place, bool focused) const;

    // The user's selecting; true when the selection may have changed and the parent is to hear of it.
    bool PickByMouse(int index, Qt::KeyboardModifiers modifiers);
    bool PickByKey(int index, Qt::KeyboardModifiers modifiers);
    bool PressSpace(Qt::KeyboardModifiers modifiers);
    void SelectOnly(int first, int last);
    void DragTo(int y);
    void Tell(UINT code);
    int TypeAhead(const QString& typed);
    bool TypingAhead() const;

    RowStore<Row> m_rows;
    int m_selectedCount = 0;
    int m_current = -1; // single selection: the selected row, which the program may take the caret away from
    int m_caret = -1;   // with the focus rectangle
    int m_anchor = -1;  // where a range of the user's begins
    int m_extent = 0;
    bool m_arrangePending = false;
    bool m_repaintPending = false;
    int m_wantedTop = -1;        // that the scroll bar does not know yet; -1 when it does
    mutable int m_rowHeight = 0; // 0 when it has to be measured
    bool m_dragging = false;
    bool m_dragSelects = true; // what dragging does to the rows that it reaches
    bool m_dragKeeps = false;  // the rows outside the range stay as they are
    int m_dragY = 0;
    QBasicTimer m_dragScroll;
    QString m_typed;
    QElapsedTimer m_typedAt;
};

} // namespace platform
