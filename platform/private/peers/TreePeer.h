// Trees on the toolkit's tree widget, which draws and scrolls; what clicks and keys do is decided here, because the
// parent is told before anything changes.
#pragma once

#include "platform/controls/TreeCtrl.h"
#include "platform/private/peers/Hosted.h"

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

    UINT DialogCode() const override { return WantsArrows | WantsCharacters; }
    std::unique_ptr<CWnd> MakeObject() const override;
    void FocusChanged(bool gained) override;
    void StyleChanged() override;
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM) override;

    TreeItem* Add(const CString& text, int image, int selectedImage);
    void RemoveAll(); // tells nobody
    TreeItem* SelectedItem() const;
    void SelectItem(TreeItem* item, UINT action);
    bool HasBoxes() const { return WindowPeer::style & TVS_CHECKBOXES; }
    void Toggle(TreeItem* item);
    TreeItem* HitTest(const QPoint& point, UINT& flags) const;
    QRect ItemRect(const TreeItem& item, bool textOnly) const;
    const CImageList* SetImages(const CImageList* images);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void SelectionMoved();
    void ShowImage(TreeItem& item);
    LRESULT Tell(int code);
    bool Usable(const QPointer<QWidget>& alive) const { return alive && !WindowPeer::destroyed; }
    QStyleOptionViewItem OptionFor(const TreeItem& item) const;

    const CImageList* m_images = nullptr; // the program's
    TreeItem* m_told = nullptr;           // the selection that the parent knows; compared, never followed
    UINT m_action = TVC_UNKNOWN;
    bool m_silent = false;
    bool m_pressed = false; // the left button went down over the tree
    QPoint m_pressedAt;
};

} // namespace platform
