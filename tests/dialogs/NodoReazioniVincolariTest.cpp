#include "dialogs/results/DialogNodoReazioniVincolari.h"
#include "model/element/Nodo.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogNodoReazioniVincolari;

class NodoReazioniVincolari : public ToolTest<CDialogNodoReazioniVincolari> {
  protected:
    NodoReazioniVincolari() {
        m_first = m_host.doc.NewNodo(0, 0, 0);
        m_second = m_host.doc.NewNodo(1, 0, 0);
        const CNodoReazioniVincolari reactions(1, -20, -1250, 3.5, 0, 1e-7);
        m_first->SetReactions(&reactions);
    }

    std::string Shown() {
        std::string all = m_driver.Text(Dialog::IDC_NODO);
        for (int id = Dialog::IDC_FX; id < Dialog::IDC_FX + 6; ++id)
            all += "|" + m_driver.Text(id);
        return all;
    }

    CNodo *m_first, *m_second;
    const std::string m_firstShown = "Nodo n.ro 1|-1.000e+00|2.000e+01|1.250e+03|-3.500e+00|0.000e+00|-1.000e-07";
    const std::string m_none = "Nessun nodo selezionato||||||";
};

TEST_F(NodoReazioniVincolari, ShowsTheFirstSelectedNode) {
    EXPECT_EQ(Shown(), m_none);
    m_host.doc.selected.AddTail(m_first);
    m_host.doc.selected.AddTail(m_second);
    m_dialog.Update(nullptr, 57, nullptr);
    EXPECT_EQ(Shown(), m_firstShown) << "negated, one component in each field";
    m_host.doc.selected.RemoveAll();
    m_host.doc.selected.AddTail(m_second);
    m_dialog.Update(nullptr, 57, nullptr);
    EXPECT_EQ(Shown(), "Nodo n.ro 2 non disponibili||||||") << "what the other node had must not stay";
}

TEST_F(NodoReazioniVincolari, RefreshesOnSelectionAndResultsOnly) {
    for (long code = 0; code < 100; ++code) {
        m_host.doc.selected.AddTail(m_first);
        const bool refreshes = (code >= 39 && code <= 41) || (code >= 57 && code <= 62);
        m_host.doc.UpdateAllViews(nullptr, code | 0x50000); // with an additional value
        EXPECT_EQ(Shown(), refreshes ? m_firstShown : m_none) << code;
        m_host.doc.selected.RemoveAll();
        m_host.doc.UpdateAllViews(nullptr, 62);
        ASSERT_EQ(Shown(), m_none);
    }
}

TEST_F(NodoReazioniVincolari, FieldsAreReadOnlyAndTheViewMayClose) {
    m_host.doc.selected.AddTail(m_first);
    m_driver = Reopen();
    for (int id = Dialog::IDC_FX; id < Dialog::IDC_FX + 6; ++id)
        EXPECT_TRUE(m_dialog.GetDlgItem(id)->GetStyle() & ES_READONLY) << id;
    m_driver.SetFocus(Dialog::IDC_FX);
    m_driver.TypeKeys("9");
    EXPECT_EQ(Shown(), m_firstShown);
    m_host.AddView();
    m_host.CloseView(m_host.View());
    m_dialog.Update(nullptr, 57, nullptr);
    EXPECT_EQ(Shown(), m_none) << "without a document there is no node";
}

} // namespace
