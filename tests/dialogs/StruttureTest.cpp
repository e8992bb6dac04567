#include "dialogs/check/DialogStrutture.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "tests/dialogs/CheckModel.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int treeId = CDialogStrutture::IDC_TREE_STRUTTURE;

class Strutture : public ToolTest<CDialogStrutture> {
  protected:
    CTreeCtrl& Tree() { return dynamic_cast<CTreeCtrl&>(*m_dialog.GetDlgItem(treeId)); }
    HTREEITEM Item(int index) {
        HTREEITEM item = Tree().GetRootItem();
        while (index-- > 0)
            item = Tree().GetNextSiblingItem(item);
        return item;
    }
    Lines Texts() {
        Lines texts;
        for (HTREEITEM item = Tree().GetRootItem(); item; item = Tree().GetNextSiblingItem(item))
            texts.push_back(Tree().GetItemText(item).ToUtf8());
        return texts;
    }
    // The box stands left of the label; hit testing finds it.
    void ClickBox(int index) {
        CRect label;
        Tree().GetItemRect(Item(index), &label, TRUE);
        for (int x = label.left - 1; x > 0; --x) {
            UINT flags = 0;
            CPoint point(x, label.CenterPoint().y);
            Tree().HitTest(point, &flags);
            if (!(flags & TVHT_ONITEMSTATEICON))
                continue;
            point.x -= 4; // inside the box, off its edge
            Tree().ClientToScreen(point);
            m_dialog.ScreenToClient(point);
            m_driver.ClickAt(point.x, point.y);
            return;
        }
        ADD_FAILURE() << "no box before item " << index;
    }
    // Lets the timer run out and gives what the host then received.
    Lines Later() {
        DialogDriver::Wait(250);
        return m_host.Take();
    }
    // What the host receives for ticked structures with these selections.
    static Lines Ticked(const std::vector<Lines>& structures) {
        Lines lines{"Deseleziona null"};
        for (const Lines& selected : structures) {
            lines.insert(lines.end(), {"UpdateAllViews null 8 null", "UpdateAllViews null 17 null"});
            lines.insert(lines.end(), selected.begin(), selected.end());
            lines.insert(lines.end(), {"UpdateAllViews null 7340041 null", "UpdateAllViews null 18 null",
                                       "UpdateAllViews null 5 Adv3dRect"});
        }
        return lines;
    }

    CheckModel m_model{m_host.doc};
};

TEST_F(Strutture, OpensWithOneBoxForEachStructure) {
    EXPECT_TRUE(Texts().empty());
    m_model.Frame();
    m_model.Frame();
    m_dialog.DestroyWindow();
    m_host.Open(m_dialog);
    EXPECT_EQ(m_host.Take().at(0), "Deseleziona null") << "before the search";
    EXPECT_EQ(Texts(), (Lines{"Struttura n.ro 1", "Struttura n.ro 2"}));
    EXPECT_EQ(Tree().GetItemData(Item(1)), 1u);
    EXPECT_FALSE(Tree().GetCheck(Item(0)));
    EXPECT_EQ(Later(), Lines{}) << "nothing is selected before a tick";
}

TEST_F(Strutture, TicksByMouseSelectInOrder) {
    for (int i = 0; i < 3; ++i)
        m_model.Frame();
    m_driver = Reopen();
    // The first node meets the beam, and so does the second: the beam is named once for each.
    const Lines first(2, "SelezionaTrave 1 null Adv3dRect"), third(2, "SelezionaTrave 3 null Adv3dRect");
    ClickBox(2);
    EXPECT_TRUE(Tree().GetCheck(Item(2)));
    EXPECT_EQ(m_host.Take(), Lines{}) << "read before the tree has toggled, the tick would be the old one";
    EXPECT_EQ(Later(), Ticked({third}));
    ClickBox(0);
    EXPECT_EQ(Later(), Ticked({first, third}));
    ClickBox(0);
    ClickBox(2);
    EXPECT_EQ(Later(), Lines{"Deseleziona null"}) << "two clicks in one period are one reading";
    EXPECT_EQ(m_host.doc.selected.GetCount(), 0);
}

TEST_F(Strutture, TicksByKeyboard) {
    m_model.Frame();
    m_model.Frame();
    m_driver = Reopen();
    m_driver.SetFocus(treeId);
    Tree().SelectItem(Item(0));
    m_driver.Press(VK_DOWN);
    EXPECT_EQ(Later(), Lines{}) << "only Space starts the timer";
    m_driver.Press(VK_SPACE);
    EXPECT_TRUE(Tree().GetCheck(Item(1)));
    EXPECT_EQ(Later().size(), 8u);
    EXPECT_EQ(Later(), Lines{}) << "the timer runs once";
}

TEST_F(Strutture, EveryKindOfElementAndNodesWithout) {
    CNodo* const a = m_model.Node();
    CNodo* const b = m_model.Node();
    CNodo* const c = m_model.Node();
    m_model.Truss(*a, *b);
    m_model.Wall({a, b, c});
    m_model.Slab({a, b, c});
    m_model.Node();
    m_driver = Reopen();
    ClickBox(1); // a node without elements
    EXPECT_EQ(Later(), Ticked({{}}));
    ClickBox(0);
    const Lines lines = Later();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "SelezionaAsta 1 null Adv3dRect"), 2);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "SelezionaSetto 1 null Adv3dRect"), 3);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "SelezionaSolaio 1 null Adv3dRect"), 3);
    EXPECT_EQ(m_host.doc.selected.GetCount(), 3) << "the nodes themselves are not selected";
}

TEST_F(Strutture, NodesRemovedAfterTheSearch) {
    m_model.Frame();
    m_model.Frame();
    m_driver = Reopen();
    m_host.doc.travi.erase(m_host.doc.travi.begin());
    m_host.doc.nodi.erase(m_host.doc.nodi.begin());
    ClickBox(0);
    EXPECT_EQ(Later(), Ticked({{}}));
    EXPECT_EQ(Texts().size(), 2u) << "later changes do not refresh the list";
}

TEST_F(Strutture, ClosedBeforeTheTimer) {
    m_model.Frame();
    m_driver = Reopen();
    ClickBox(0);
    m_driver.Press(VK_ESCAPE);
    EXPECT_EQ(Later(), Lines{"WM_FINEDIALOGO 2"});
    m_driver = Reopen();
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Lines{"WM_FINEDIALOGO 1"});
}

} // namespace
