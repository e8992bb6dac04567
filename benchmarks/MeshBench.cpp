// A million walls meshed by the dialog in an open document, beside a plain loop that adds the same nodes and walls to
// the document one by one; and the undo of it.
#include "benchmarks/Ratios.h"
#include "dialogs/frame/Module.h"
#include "dialogs/generation/DialogMesh4Punti.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "platform/resource/Module.h"
#include "platform/window/Application.h"

#include <stdexcept>
#include <vector>

using namespace host;

namespace {

constexpr int parts = 1000; // along each side, one apart

class OpenDocument {
  public:
    OpenDocument() {
        AfxAttachLinkedModule(&QuovarModuleEntry); // once: it stays started
        m_workspace.NewDocument();
        CWinApp::PumpMessages();
    }

    HostDocument& Document() { return m_workspace.ActiveView()->Document(); }

    CDialogMesh4Punti& OpenDialog() {
        auto* dialog = static_cast<CDialogMesh4Punti*>(m_workspace.Run(*FindCommand(CDialogMesh4Punti::IDD)));
        if (!dialog)
            throw std::runtime_error("the dialog does not open");
        dialog->m_nSuddivisioni1 = dialog->m_nSuddivisioni2 = parts;
        dialog->m_dX2 = dialog->m_dX3 = dialog->m_dY3 = dialog->m_dY4 = parts;
        CWinApp::PumpMessages();
        return *dialog;
    }

    void MeshByHand() {
        HostDocument& document = Document();
        const UndoStep undo(document.Undo(), "Mesh");
        std::vector<int> former, row;
        for (int j = 0; j <= parts; ++j) {
            former.swap(row);
            row.clear();
            for (int i = 0; i <= parts; ++i) {
                CFPoint place(i, j, 0);
                row.push_back(document.AddNodo(place, nullptr, 1)->GetID());
            }
            for (std::size_t i = 0; j > 0 && i < parts; ++i)
                document.AddSetto({former[i], former[i + 1], row[i + 1], row[i]});
        }
    }

    // What one of the two left out must not make it the faster one.
    void Check() {
        if (Document().GetSizeNodi() != (parts + 1) * (parts + 1) || Document().GetSizeSetti() != parts * parts)
            throw std::runtime_error("not the mesh that was to be measured");
    }

  private:
    Workspace m_workspace;
};

void MeshByDialog(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            OpenDocument open;
            CDialogMesh4Punti& dialog = open.OpenDialog();
            state.ResumeTiming();
            dialog.OnApply();
            state.PauseTiming();
            open.Check();
        }
        state.ResumeTiming();
    }
}

void MeshByHand(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            OpenDocument open;
            state.ResumeTiming();
            open.MeshByHand();
            state.PauseTiming();
            open.Check();
        }
        state.ResumeTiming();
    }
}

void UndoMesh(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            OpenDocument open;
            open.OpenDialog().OnApply();
            open.Check();
            state.ResumeTiming();
            open.Document().Undo().Undo();
            state.PauseTiming();
            if (open.Document().GetSizeNodi() != 0)
                throw std::runtime_error("the mesh is not undone");
        }
        state.ResumeTiming();
    }
}

const bench::Ratio mesh("mesh_1000_by_1000_walls", MeshByDialog, MeshByHand, 1.5, benchmark::kSecond);
const bench::Ratio undo("undo_mesh_1000_by_1000_walls", UndoMesh, MeshByHand, 1, benchmark::kSecond);

} // namespace
