// Trees on the toolkit's tree widget, which draws and scrolls; what clicks and keys do is decided here, because the
// parent is told before anything changes.
#pragma once

#include "platform/TreeCtrl.h"
#include "platform/private/Hosted.h"

#include <QTreeWidget>

namespace platform {

class TreeItem final : public QTreeWidgetItem {
  public:
    TreeItem();

    DWORD_PTR itemData = 0;
    int image = -1;
    int selectedImage = -1;
};

class TreePeer final : public HostedScrollArea<QTreeWidget> {
  public:
    TreePeer(const ControlSpec& spec, WindowPeer& parentPeer);

    UINT dialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> makeObject() const override;
    void focusChanged(bool gained) override;
    void styleChanged() override;
    LRESULT defaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    TreeItem* add(const CString& text, int image, int selectedImage, QTreeWidgetItem* parentItem, HTREEITEM after);
    void remove(TreeItem* item);
    void removeAll(); // tells nobody
    TreeItem* selectedItem() const;
    void selectItem(TreeItem* item, UINT action);
    bool expand(TreeItem* item, UINT code);
    bool hasBoxes() const { return WindowPeer::style & TVS_CHECKBOXES; }
    void toggle(TreeItem* item);
    TreeItem* hitTest(const QPoint& point, UINT& flags) const;
    QRect itemRect(const TreeItem& item, bool textOnly) const;
    const CImageList* setImages(const CImageList* images);
    void showImage(TreeItem& item);
    void sortChildren(TreeItem* item); // null for the top items

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    int placeOf(QTreeWidgetItem& parentItem, const QString& text, HTREEITEM after) const;
    void selectionMoved();
    void labelEdited(QTreeWidgetItem* item);
    LRESULT tell(int code);
    bool usable(const QPointer<QWidget>& alive) const { return alive && !WindowPeer::destroyed; }
    QStyleOptionViewItem optionFor(const TreeItem& item) const;

    const CImageList* m_images = nullptr; // the program's
    TreeItem* m_told = nullptr;           // the selection that the parent knows; compared, never followed
    UINT m_action = TVC_UNKNOWN;
    bool m_silent = false;
    bool m_pressed = false; // the left button went down over the tree, outside an expansion mark
    QPoint m_pressedAt;
};

} // namespace platform
