#include "dialogs/results/DialogNodoReazioniVincolari.h"
#include "model/Nodo.h"
#include "tests/dialogs/ToolTest.h"

namespace {

class NodoReazioniVincolari : public ToolTest<CDialogNodoReazioniVincolari> {
  protected:
    NodoReazioniVincolari() {
        first = host.doc.NewNodo(0, 0, 0);
        second = host.doc.NewNodo(1, 0, 0);
        const CNodoReazioniVincolari reactions(1, -20, -1250, 3.5, 0, 1e-7);
        first->SetReazioniVincolari(&reactions);
    }

    std::string Shown() {
        std::string all = driver.Text(1118);
        for (int id = 1112; id <= 1117; ++id)
            all += "|" + driver.Text(id);
        return all;
    }

    CNodo *first, *second;
    const std::string firstShown = "Nodo n.ro 1|-1.000e+00|2.000e+01|1.250e+03|-3.500e+00|0.000e+00|-1.000e-07";
    const std::string none = "Nessun nodo selezionato||||||";
};

TEST_F(NodoReazioniVincolari, ShowsTheFirstSelectedNode) {
    EXPECT_EQ(Shown(), none);
    host.doc.selected.AddTail(first);
    host.doc.selected.AddTail(second);
    dialog.Update(nullptr, 57, nullptr);
    EXPECT_EQ(Shown(), firstShown) << "negated, one component in each field";
    host.doc.selected.RemoveAll();
    host.doc.selected.AddTail(second);
    dialog.Update(nullptr, 57, nullptr);
    EXPECT_EQ(Shown(), "Nodo n.ro 2 non disponibili||||||") << "what the other node had must not stay";
}

TEST_F(NodoReazioniVincolari, RefreshesOnSelectionAndResultsOnly) {
    for (long code = 0; code < 100; ++code) {
        host.doc.selected.AddTail(first);
        const bool refreshes = (code >= 39 && code <= 41) || (code >= 57 && code <= 62);
        host.doc.UpdateAllViews(nullptr, code | 0x50000); // with an additional value
        EXPECT_EQ(Shown(), refreshes ? firstShown : none) << code;
        host.doc.selected.RemoveAll();
        host.doc.UpdateAllViews(nullptr, 62);
        ASSERT_EQ(Shown(), none);
    }
}

TEST_F(NodoReazioniVincolari, FieldsAreReadOnlyAndTheViewMayClose) {
    host.doc.selected.AddTail(first);
    driver = Reopen();
    for (int id = 1112; id <= 1117; ++id)
        EXPECT_TRUE(dialog.GetDlgItem(id)->GetStyle() & ES_READONLY) << id;
    driver.SetFocus(1112);
    driver.TypeKeys("9");
    EXPECT_EQ(Shown(), firstShown);
    host.AddView();
    host.CloseView(host.View());
    dialog.Update(nullptr, 57, nullptr);
    EXPECT_EQ(Shown(), none) << "without a document there is no node";
}

} // namespace
