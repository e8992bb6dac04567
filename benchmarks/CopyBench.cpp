// A hundred copies of a frame, its nodes joined from copy to copy, made by the dialog in an open document, beside a
// plain loop that adds the same nodes and beams to the document one by one; and the undo of it.
#include "benchmarks/Models.h"
#include "benchmarks/Ratios.h"
#include "dialogs/frame/Module.h"
#include "dialogs/selection/DialogCopiaTrasla.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "platform/resource/Module.h"
#include "platform/window/Application.h"

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace host;

namespace {

constexpr int frameNodes = 22 * 22 * 22; // with 22 * 22 * 21 beams, a little over 10,000
constexpr int copies = 100;
constexpr double step = 30; // clear of the frame itself

// The application with the frame open and selected.
class OpenFrame {
  public:
    OpenFrame() {
        AfxAttachLinkedModule(&QuovarModuleEntry); // once: it stays started
        m_workspace.NewDocument();
        bench::FillGrid(Document(), frameNodes);
        Document().SelectAll();
        CWinApp::PumpMessages();
        m_nodes = Document().GetSizeNodi();
        m_beams = Document().GetSizeTravi();
    }

    HostDocument& Document() { return m_workspace.ActiveView()->Document(); }

    // Fills the dialog in; the caller presses OK, which ends it.
    CDialogCopiaTrasla& OpenDialog() {
        auto* dialog = static_cast<CDialogCopiaTrasla*>(m_workspace.Run(*FindCommand(CDialogCopiaTrasla::IDD)));
        if (!dialog)
            throw std::runtime_error("the dialog does not open");
        dialog->GetDlgItem(CDialogCopiaTrasla::IDC_COPIE)->SetWindowText("100");
        dialog->GetDlgItem(CDialogCopiaTrasla::IDC_SPAZIATURA)->SetWindowText("30");
        dialog->CheckRadioButton(CDialogCopiaTrasla::IDC_UNIONE_TRAVI, CDialogCopiaTrasla::IDC_UNIONE_TRAVI + 2,
                                 CDialogCopiaTrasla::IDC_UNIONE_TRAVI);
        CWinApp::PumpMessages();
        return *dialog;
    }

    void CopyByHand() {
        HostDocument& document = Document();
        const UndoStep undo(document.Undo(), "Copie");
        std::vector<int> places(static_cast<std::size_t>(m_nodes));
        for (int i = 0; i < m_nodes; ++i)
            places[static_cast<std::size_t>(i)] = document.GetIndexNodo(i)->GetID();
        std::vector<std::pair<int, int>> beams;
        for (int i = 0; i < m_beams; ++i) // the frame's nodes are numbered from 1 in document order
            beams.emplace_back(document.GetIndexTrave(i)->GetIDNodoIniziale() - 1,
                               document.GetIndexTrave(i)->GetIDNodoFinale() - 1);
        for (int copy = 1; copy <= copies; ++copy)
            AddCopy(places, beams, copy * step);
    }

    // What one of the two left out must not make it the faster one.
    void Check() {
        if (Document().GetSizeNodi() != m_nodes * (copies + 1) ||
            Document().GetSizeTravi() != m_beams * (copies + 1) + m_nodes * copies)
            throw std::runtime_error("not the copies that were to be measured");
    }

  private:
    // `places` holds the numbers of the former copy's nodes and gets those of the new one.
    void AddCopy(std::vector<int>& places, const std::vector<std::pair<int, int>>& beams, double height) {
        HostDocument& document = Document();
        std::vector<int> former(places.size());
        former.swap(places);
        for (std::size_t i = 0; i < places.size(); ++i) {
            CFPoint place = *document.GetIndexNodo(static_cast<int>(i))->GetPunto() + CFPoint(0, 0, height);
            places[i] = document.AddNodo(place, nullptr, 1)->GetID();
        }
        for (const auto& [first, second] : beams)
            document.AddTrave(places[static_cast<std::size_t>(first)], places[static_cast<std::size_t>(second)],
                              nullptr);
        for (std::size_t i = 0; i < places.size(); ++i)
            document.AddTrave(former[i], places[i], nullptr);
    }

    Workspace m_workspace;
    int m_nodes = 0, m_beams = 0;
};

void CopyByDialog(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            OpenFrame frame;
            CDialogCopiaTrasla& dialog = frame.OpenDialog();
            state.ResumeTiming();
            dialog.OnOK();
            state.PauseTiming();
            frame.Check();
        }
        state.ResumeTiming();
    }
}

void CopyByHand(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            OpenFrame frame;
            state.ResumeTiming();
            frame.CopyByHand();
            state.PauseTiming();
            frame.Check();
        }
        state.ResumeTiming();
    }
}

void UndoCopies(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            OpenFrame frame;
            frame.OpenDialog().OnOK();
            frame.Check();
            state.ResumeTiming();
            frame.Document().Undo().Undo();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

const bench::Ratio copy("copy_100_of_10000_joined_elements", CopyByDialog, CopyByHand, 1.5, benchmark::kSecond);
const bench::Ratio undo("undo_100_of_10000_joined_elements", UndoCopies, CopyByHand, 1, benchmark::kSecond);

} // namespace
