#include "dialogs/check/DialogCheck.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "tests/dialogs/CheckModel.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int list = CDialogCheck::IDC_LIST_ERRORS;
const char* const severalStructures = "ATTENZIONE...Controllare la struttura con il comando Check Strutture Multiple!";

class Check : public ToolTest<CDialogCheck> {
  protected:
    // Opens the window on the model as it is, asks for the check and gives its rows without the two of the heading.
    Lines Rows() {
        m_driver = Reopen();
        return Recheck();
    }
    Lines Recheck() {
        m_host.doc.UpdateAllViews(nullptr, MODIFICA_CHECK);
        m_host.Take();
        Lines rows = m_driver.Rows(list);
        const Lines heading{"--- Check Modello --- ", ""};
        EXPECT_TRUE(rows.size() >= 2 && std::equal(heading.begin(), heading.end(), rows.begin()));
        return Lines(rows.begin() + std::min<std::ptrdiff_t>(2, std::ssize(rows)), rows.end());
    }
    // These rows and the two that close a list without faults.
    static Lines Closed(Lines rows) {
        rows.insert(rows.end(), {"", "--- Fine Messaggi ---"});
        return rows;
    }
    static std::string Labile(int structure) {
        return "Attenzione la Struttura n.ro " + std::to_string(structure) + ", è labile";
    }

    CheckModel m_model{m_host.doc};
};

TEST_F(Check, OpensBelowTheViewAndWaitsForTheRequest) {
    m_model.Frame();
    m_model.Frame();
    m_host.frame.table = CRect(0, 0, 400, 130);
    m_dialog.DestroyWindow();
    m_host.Open(m_dialog);
    // Seeded by the first node not reached yet, one step of the bar for each node.
    EXPECT_EQ(m_host.Take(),
              (Lines{"SelezionaStruttura CNodo 1", "InizioAttesa \"Attendere...Ricerca delle strutture\" 4", "StepBar",
                     "StepBar", "StepBar", "SelezionaStruttura CNodo 3", "StepBar", "FineAttesa"}));
    m_driver = DialogDriver(m_dialog);
    EXPECT_TRUE(m_driver.Rows(list).empty());
    CRect around, place, client, box;
    m_host.frame.GetWindowRect(around);
    m_dialog.GetWindowRect(place);
    EXPECT_EQ(place.left, around.left);
    EXPECT_EQ(place.top, around.bottom);
    constexpr int frame = 30; // which the window manager may add around the size asked for
    EXPECT_NEAR(place.Width(), around.Width(), frame);
    EXPECT_NEAR(place.Height(), 130, frame);
    m_dialog.SetWindowPos(nullptr, 0, 0, 333, 222, SWP_NOMOVE | SWP_NOZORDER);
    m_dialog.GetClientRect(client);
    m_dialog.GetDlgItem(list)->GetWindowRect(box);
    EXPECT_EQ(box.Size(), client.Size()) << "the list fills the window at every size";
    // Only the check's own change code fills the list.
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_STRUTTURA);
    EXPECT_TRUE(m_driver.Rows(list).empty());
}

TEST_F(Check, OpensWithoutMainWindow) {
    m_host.hasFrame = false;
    EXPECT_EQ(Rows(), Closed({}));
}

TEST_F(Check, EnterKeepsItOpen) {
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_TRUE(m_driver.IsOpen());
}

TEST_F(Check, SoundFramesAndSeveralStructures) {
    m_model.Frame();
    EXPECT_EQ(Rows(), Closed({}));
    m_model.Frame();
    m_host.doc.unica = 0;
    EXPECT_EQ(Rows(), Closed({severalStructures}));
    EXPECT_EQ(Recheck(), Closed({severalStructures})) << "a second check starts from an empty list";
    m_model.Frame();
    m_host.doc.nodi[0]->SetRestraint(nullptr);
    m_host.doc.nodi[4]->SetRestraint(nullptr);
    EXPECT_EQ(Rows(), Closed({severalStructures, Labile(1), Labile(3)})) << "numbered in the order found";
}

TEST_F(Check, RestraintsThatHoldAStructureAndThoseThatDoNot) {
    const auto [first, second] = m_model.Frame();
    const CVincolo none, pinned(1, 1, 1, 0, 0, 0), fixed(CVincolo::All), noTorsion(1, 1, 1, 1, 1, 0);
    const CVincolo freeX(0, 1, 1, 1, 1, 1), freeY(1, 0, 1, 1, 1, 1), freeZ(1, 1, 0, 1, 1, 1);
    const std::string allFixed =
        "Attenzione nella Struttura n.ro 1 tutti i nodi sono incastrati, impossibile risolverla!";
    const struct {
        CVincolo first, second;
        Lines rows;
        const char* why;
    } cases[] = {
        {fixed, none, {}, "three translations and six components in one node"},
        {pinned, none, {Labile(1)}, "three components are not six"},
        {pinned, pinned, {}, "components of several nodes add up"},
        {freeX, freeX, {Labile(1)}, "ten components, none along x"},
        {freeY, freeY, {Labile(1)}, "none along y"},
        {freeZ, freeZ, {Labile(1)}, "none along z"},
        {noTorsion, none, {Labile(1)}, "five components"},
        {noTorsion, CVincolo(0, 0, 0, 0, 0, 1), {}, "the sixth in another node"},
        {fixed, fixed, {allFixed}, "nothing is left to solve"},
        {fixed, noTorsion, {}, "one free component in one node is enough"},
    };
    for (const auto& each : cases) {
        first->SetRestraint(&each.first);
        second->SetRestraint(&each.second);
        EXPECT_EQ(Rows(), Closed(each.rows)) << each.why;
    }
}

TEST_F(Check, SpringsCountByDirection) {
    const auto [first, second] = m_model.Frame();
    first->SetRestraint(nullptr);
    second->SetRestraint(nullptr);
    const CMolla along(CMolla::Translational, 10, CFPoint(1, -1, 0.5)), about(CMolla::Rotational, 10, CFPoint(1, 2, 3));
    const CMolla aboutY(CMolla::Rotational, 5, CFPoint(0, 1, 0)), aboutZ(CMolla::Rotational, 5, CFPoint(0, 0, 1));
    const struct {
        std::vector<CMolla> springs;
        bool held;
        const char* why;
    } cases[] = {
        {{along, about}, true, "six components"},
        {{along}, false, "three components"},
        {{about, about}, false, "rotational springs hold no translation"},
        {{along, CMolla(CMolla::Translational, 0, CFPoint(1, 1, 1))}, false, "without stiffness it holds nothing"},
        {{CMolla(CMolla::Translational, 10, CFPoint(1, 1, 0)), about, about}, false, "z is free"},
        {{along, aboutZ, aboutY, aboutZ}, true, "each non-zero component is one"},
    };
    for (const auto& each : cases) {
        first->RemoveSprings();
        for (const CMolla& spring : each.springs)
            first->AddSpring(spring);
        EXPECT_EQ(Rows(), Closed(each.held ? Lines{} : Lines{Labile(1)})) << each.why;
    }
}

TEST_F(Check, BeamsReleasedAtBothEnds) {
    m_model.Frame();
    m_model.Frame();
    CTrave& beam = *m_host.doc.travi[1];
    const auto release = [&](int end, int n, int t, int m2, int m3) {
        beam.AddSpecifica(new CSpecificheSvincoliTrave(end, n, t, m2, m3));
        return Rows();
    };
    EXPECT_EQ(release(0, 0, 0, 1, 0), Closed({})) << "a single specification is not examined";
    EXPECT_EQ(release(0, 0, 0, 0, 1), Closed({})) << "both at the first end";
    EXPECT_EQ(release(1, 0, 0, 0, 0), Closed({})) << "the second end releases nothing";
    EXPECT_EQ(release(1, 1, 1, 0, 0), Closed({})) << "other forces at the other end";
    EXPECT_EQ(release(1, 0, 0, 1, 0), Closed({"La Trave n.ro 2, è labile."})) << "once for the beam";
}

TEST_F(Check, TrussMembersAndMembranesAtFreeNodes) {
    const std::string member = "La biella n.ro 1, è labile.", membrane = "La membrana n.ro 1, è labile.";
    CNodo* const a = m_model.Node();
    CNodo* const b = m_model.Node();
    m_model.Truss(*a, *b);
    a->SetRestraint(&CheckModel::fixed);
    b->SetRestraint(&CheckModel::pinned);
    EXPECT_EQ(Rows(), Closed({member})) << "b is free to rotate";
    const CVincolo twoRotations(1, 1, 1, 1, 1, 0);
    a->SetRestraint(&twoRotations);
    EXPECT_EQ(Rows(), Closed({member, member})) << "one row a node; all three rotations are needed";
    // A beam or a wall at the node passes; a membrane or another member does not.
    CNodo* const c = m_model.Node();
    m_model.Slab({a, b, c});
    EXPECT_EQ(Rows(), Closed({member, member, membrane, membrane, membrane}));
    CNodo* const d = m_model.Node();
    m_model.Beam(*a, *d);
    m_model.Wall({b, c, d});
    EXPECT_EQ(Rows(), Closed({}));
}

TEST_F(Check, NodesWithManyElementsAreAskedOnce) {
    // The answer that is kept for such a node must be the right one, for each node its own.
    CNodo* const hub = m_model.Node();
    CNodo* const held = m_model.Node();
    held->SetRestraint(&CheckModel::fixed);
    for (int i = 0; i < 20; ++i) {
        CNodo* const end = m_model.Node();
        end->SetRestraint(&CheckModel::fixed);
        m_model.Truss(*hub, *end);
        m_model.Truss(*held, *end);
    }
    const Lines rows = Rows();
    EXPECT_EQ(rows.size(), 22u);
    EXPECT_EQ(rows.front(), "La biella n.ro 1, è labile.");
    EXPECT_EQ(std::count(rows.begin(), rows.end(), "La biella n.ro 2, è labile."), 0);
}

// Catches checks that run, or report, in another order.
TEST_F(Check, RowsComeInTheirOrder) {
    m_host.doc.unica = 0;
    CTrave& released = m_model.Beam(*m_model.Node(), *m_model.Node());
    released.AddSpecifica(new CSpecificheSvincoliTrave(0, 0, 0, 1, 0));
    released.AddSpecifica(new CSpecificheSvincoliTrave(1, 0, 0, 1, 0));
    CNodo* const a = m_model.Node();
    CNodo* const b = m_model.Node();
    CNodo* const c = m_model.Node();
    m_model.Truss(*a, *b);
    m_model.Slab({a, b, c}).SetThickness(0, nullptr);
    m_model.Node()->SetRestraint(&CheckModel::fixed);
    const std::string member = "La biella n.ro 1, è labile.", membrane = "La membrana n.ro 1, è labile.";
    const Lines expected{severalStructures,
                         Labile(1),
                         Labile(2),
                         "Attenzione nella Struttura n.ro 3 tutti i nodi sono incastrati, impossibile risolverla!",
                         "La Trave n.ro 1, è labile.",
                         member,
                         member,
                         membrane,
                         membrane,
                         membrane,
                         "CNodo n.ro 6 Il nodo non appartiene a nessun elemento.",
                         "CSolaio n.ro 1 L'elemento non ha uno spessore."};
    EXPECT_EQ(Rows(), expected);
}

TEST_F(Check, PickingRowsSelectsTheirObjects) {
    m_model.Node(); // structure 1: without restraint, without element
    CNodo* const a = m_model.Node();
    CNodo* const b = m_model.Node();
    CNodo* const c = m_model.Node();
    m_host.doc.NewTrave(2, 3)->SetSezione(0, nullptr);
    m_host.doc.travi[0]->SetMateriale(1, &m_model.material);
    m_model.Wall({a, b, c}).SetThickness(0, nullptr);
    m_host.doc.NewAsta(3, 4)->SetSezione(1, &m_model.section);
    m_model.Slab({a, b, c}).SetThickness(0, nullptr);
    Rows();
    const Lines rows = m_driver.Rows(list);
    std::vector<std::pair<std::string, std::string>> expected{
        {"CNodo n.ro 1", "SelezionaNodo 1 null"},          {"CTrave n.ro 1", "SelezionaTrave 1 null null"},
        {"CAsta n.ro 1", "SelezionaAsta 1 null null"},     {"CSetto n.ro 1", "SelezionaSetto 1 null null"},
        {"CSolaio n.ro 1", "SelezionaSolaio 1 null null"}, {"--- Check Modello", ""},
    };
    for (const auto& [start, call] : expected) {
        const auto row =
            std::find_if(rows.begin(), rows.end(), [&](const std::string& text) { return text.starts_with(start); });
        ASSERT_NE(row, rows.end()) << start;
        m_driver.ClickRow(list, static_cast<int>(row - rows.begin()));
        EXPECT_EQ(m_host.Take(), call.empty() ? Lines{"Deseleziona null"} : (Lines{"Deseleziona null", call})) << start;
    }
    // All rows at once by keyboard: every object, in the order of the rows.
    m_driver.Press(VK_END, ShiftKey);
    const Lines lines = m_host.Take();
    EXPECT_EQ(lines.front(), "Deseleziona null");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Deseleziona null"), 1);
    EXPECT_EQ(m_driver.SelectedRows(list).size(), rows.size());
    EXPECT_EQ(m_host.doc.selected.GetCount(), 5);
}

TEST_F(Check, ModelChangedAfterTheSearch) {
    const auto [first, second] = m_model.Frame();
    m_model.Frame();
    EXPECT_EQ(Rows(), Closed({}));
    // A restraint taken away counts at the next check, a new structure does not: the search is not repeated.
    first->SetRestraint(nullptr);
    m_model.Frame();
    m_host.doc.nodi[4]->SetRestraint(nullptr);
    EXPECT_EQ(Recheck(), Closed({Labile(1)}));
    // Nodes that were removed are not touched any more; a structure that is gone as a whole says nothing.
    m_host.doc.travi.erase(m_host.doc.travi.begin());
    m_host.doc.nodi.erase(m_host.doc.nodi.begin(), m_host.doc.nodi.begin() + 2);
    EXPECT_EQ(Recheck(), Closed({}));
    EXPECT_EQ(Rows(), Closed({Labile(2)})) << "opened again, the window searches again";
    // What stands at a removed node's address by now is another node.
    for (const auto& node : m_host.doc.nodi)
        node->SetID(node->GetID() + 100);
    EXPECT_EQ(Recheck(), Closed({}));
}

TEST_F(Check, ManyRowsAtOnce) {
    constexpr int nodes = 20'000;
    for (int i = 0; i < nodes; ++i)
        m_host.doc.NewNodo(i, 0, 0);
    Rows();
    auto& box = dynamic_cast<CListBox&>(*m_dialog.GetDlgItem(list));
    EXPECT_EQ(box.GetCount(), 2 + 2 * nodes) << "each node is a labile structure and belongs to no element";
    EXPECT_EQ(box.GetItemData(2 + nodes), 2u + nodes);
}

class FailingSearch : public StructureSearch {
  public:
    int arrays = 0;
    int failAt = 0;

  protected:
    CObArray* NewArray() override {
        if (++arrays == failAt)
            AfxThrowMemoryException();
        return StructureSearch::NewArray();
    }
};

TEST_F(Check, FailedStructureLeavesItsNodesToBeTriedAgain) {
    m_model.Frame();
    m_model.Frame();
    char text[200];
    CMemoryException(FALSE).GetErrorMessage(text, sizeof text);
    for (const int failAt : {1, 2}) {
        FailingSearch search;
        search.failAt = failAt;
        m_user.ExpectMessage(text, IDOK, MB_OK);
        search.FindStructures(&m_host.doc);
        EXPECT_EQ(search.GetSizeStructures(), 2);
        EXPECT_EQ(search.arrays, 3) << "the next node of the same structure is its seed";
        for (const auto& node : m_host.doc.nodi)
            EXPECT_TRUE(search.ThereNodo(node.get()));
    }
}

// Catches an answer for any structure where one was asked for.
TEST_F(Check, NodesKnowTheirStructure) {
    CNodo* const node = m_model.Frame().second;
    m_model.Frame();
    StructureSearch search;
    search.FindStructures(&m_host.doc);
    EXPECT_TRUE(search.ThereNodo(node, 0));
    EXPECT_FALSE(search.ThereNodo(node, 1) || search.ThereNodo(node, 2) || search.ThereNodo(nullptr));
}

} // namespace
