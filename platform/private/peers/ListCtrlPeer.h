// List views on the toolkit's: a table for LVS_REPORT, a list for the other kinds. The toolkit shows the rows and moves
// the current one; what is selected is decided and kept here.
#pragma once

#include "platform/controls/ListCtrl.h"
#include "platform/private/peers/Hosted.h"
#include "platform/private/peers/ListCtrlModel.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>

namespace platform {

// What both views share.
class ListCtrlControl {
  public:
    virtual ~ListCtrlControl() = default;

    virtual QAbstractItemView& View() = 0;
    virtual WindowPeer& Peer() = 0;
    virtual void SetColumnWidth(int column, int width) = 0;
    virtual QRect RowRect(int row, int part) = 0;

    ListCtrlModel& Model() { return m_model; }
    void SetState(int row, UINT state, UINT mask);
    int RowAt(const QPoint& point) { return View().indexAt(point).row(); }
    void SetImages(const CImageList* images);
    int Insert(int row, ListCtrlModel::Row content);
    void Remove(int row);
    void Clear();  // tells nobody
    int mark = -1; // the row from which a selection extends; it stays with its row, and ends with it

  protected:
    void SetUp(const ControlSpec& spec); // when the view exists
    bool Single() { return Peer().style & LVS_SINGLESEL; }

    // The user's selecting. The mark has its new place before anybody hears of the selection.
    void PickByMouse(int row, Qt::KeyboardModifiers modifiers);
    void PickByKey(int former, const QKeyEvent& event); // `former` was the current row before the key
    bool SelectByKey(const QKeyEvent& event);           // Space and Ctrl+A; true when it was one of them
    // The rows become selected or not; with `only` the others lose their selection. Who loses it is told before who
    // gets it.
    void SelectRows(int first, int last, bool select, bool only);
    LRESULT TellItem(int code, const QPoint& point);
    bool TellKey(const QKeyEvent& event); // true when the key is spent
    QModelIndex RowIndex(int row) { return m_model.index(row, 0); }

  private:
    void ExtendTo(int row, bool only);
    void TellRows(const std::vector<int>& rows, UINT before, UINT after);

    ListCtrlModel m_model;
};

template <class Base>
class ListCtrlOf final : public HostedScrollArea<Base>, public ListCtrlControl {
  public:
    ListCtrlOf(const ControlSpec& spec, WindowPeer& parentPeer);
    // The view must not see its model go first.
    ~ListCtrlOf() override { Base::setModel(nullptr); }

    UINT DialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> MakeObject() const override { return std::make_unique<CListCtrl>(); }
    void FocusChanged(bool gained) override {
        NMHDR header;
        this->NotifyParent(header, gained ? NM_SETFOCUS : NM_KILLFOCUS);
    }
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    QAbstractItemView& View() override { return *this; }
    WindowPeer& Peer() override { return *this; }
    void SetColumnWidth(int column, int width) override;
    QRect RowRect(int row, int part) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void SetUpView(const ControlSpec& spec);

    bool m_pressed = false;
};

} // namespace platform
