// List views on the toolkit's: a table for LVS_REPORT, a list for the other kinds.
#pragma once

#include "platform/ListCtrl.h"
#include "platform/private/Hosted.h"
#include "platform/private/ListCtrlModel.h"

#include <QAbstractItemView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QMouseEvent>

namespace platform {

// What both views share. Selections are told from the selection model's signal, so that those of the program count too.
class ListCtrlControl {
  public:
    virtual ~ListCtrlControl() = default;

    virtual QAbstractItemView& view() = 0;
    virtual WindowPeer& peer() = 0;
    virtual int columnWidth(int) { return 0; }
    virtual void setColumnWidth(int, int) {}
    virtual QRect rowRect(int row, int part) = 0;

    ListCtrlModel& model() { return m_model; }
    bool selected(int row);
    bool focused(int row) { return view().currentIndex().row() == row; }
    void setState(int row, UINT state, UINT mask);
    int selectedCount();
    int nextSelected(int after); // -1 for none
    int rowAt(const QPoint& point) { return view().indexAt(point).row(); }
    void setImages(const CImageList* images);
    int insert(int row, ListCtrlModel::Row content);
    void remove(int row);
    void clear(); // tells nobody
    void sort(PFNLVCOMPARE compare, LPARAM argument);
    int mark = -1; // the row from which a selection extends

  protected:
    void setUp(const ControlSpec& spec); // when the view exists
    void tellSelection(const QItemSelection& selected, const QItemSelection& deselected);
    LRESULT tellItem(int code, const QPoint& point);
    bool tellKey(const QKeyEvent& event); // true when the key is spent
    bool tellLabel(int row, LPCTSTR text);
    QModelIndex rowIndex(int row) { return m_model.index(row, 0); }

  private:
    ListCtrlModel m_model;
    bool m_silent = false;
};

template <class View>
class ListCtrlOf final : public HostedScrollArea<View>, public ListCtrlControl {
  public:
    ListCtrlOf(const ControlSpec& spec, WindowPeer& parentPeer);
    // The view must not see its model go first.
    ~ListCtrlOf() override { View::setModel(nullptr); }

    UINT dialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> makeObject() const override { return std::make_unique<CListCtrl>(); }
    void focusChanged(bool gained) override {
        NMHDR header;
        this->notifyParent(header, gained ? NM_SETFOCUS : NM_KILLFOCUS);
    }
    LRESULT defaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    QAbstractItemView& view() override { return *this; }
    WindowPeer& peer() override { return *this; }
    int columnWidth(int column) override;
    void setColumnWidth(int column, int width) override;
    QRect rowRect(int row, int part) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void setUpView(const ControlSpec& spec);

    bool m_pressed = false;
};

} // namespace platform
