// The model check on space frames of up to a million nodes and three million beams: the search for structures beside a
// plain breadth-first walk over the same objects, the whole check beside one pass over them, how both grow, and picking
// every row of a long list.
#include "benchmarks/Ratios.h"
#include "dialogs/check/DialogCheck.h"
#include "dialogs/frame/Module.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "platform/resource/Module.h"
#include "platform/window/Application.h"

#include <QCoreApplication>

#include <cmath>
#include <memory>
#include <vector>

using namespace host;

namespace {

class FrameBuilder {
  public:
    // A cube of nodes, each joined to its neighbours along the three axes: nearly three beams a node. The lowest layer
    // is fixed. Without a material every beam has one fault.
    static DocumentData Cube(int nodes) {
        FrameBuilder builder(true);
        const int side = static_cast<int>(std::lround(std::cbrt(nodes)));
        std::vector<CNodo*> made;
        for (int i = 0; i < nodes; ++i)
            made.push_back(builder.Node(CFPoint(i % side, i / side % side, i / side / side), i < side * side));
        for (int i = 0; i < nodes; ++i) {
            if ((i + 1) % side != 0 && i + 1 < nodes)
                builder.Beam(made[static_cast<std::size_t>(i)], made[static_cast<std::size_t>(i + 1)]);
            for (const int step : {side, side * side})
                if (i + step < nodes && (step != side || i / side % side != side - 1))
                    builder.Beam(made[static_cast<std::size_t>(i)], made[static_cast<std::size_t>(i + step)]);
        }
        return std::move(builder.m_data);
    }
    // Beams end to end, each with one fault.
    static DocumentData FaultyChain(int beams) {
        FrameBuilder builder(false);
        CNodo* last = builder.Node(CFPoint(0, 0, 0), true);
        for (int i = 1; i <= beams; ++i) {
            CNodo* next = builder.Node(CFPoint(i, 0, 0), false);
            builder.Beam(last, next);
            last = next;
        }
        return std::move(builder.m_data);
    }

  private:
    explicit FrameBuilder(bool material)
        : m_material(material ? m_data.AppendNew(Kind::Material, std::make_unique<CMateriale>()) : nullptr),
          m_section(m_data.AppendNew(Kind::Section, std::make_unique<CSezione>())) {}

    CNodo* Node(const CFPoint& place, bool fixed) {
        CNodo* node = m_data.AppendNew(Kind::Node, std::make_unique<CNodo>(place));
        const CVincolo all(CVincolo::All);
        if (fixed)
            node->SetRestraint(&all);
        return node;
    }
    void Beam(CNodo* a, CNodo* b) {
        auto beam = std::make_unique<CTrave>();
        beam->SetNodi(a, b);
        if (m_material)
            beam->SetMateriale(m_material->GetID(), m_material);
        beam->SetSezione(m_section->GetID(), m_section);
        m_data.AppendNew(Kind::Beam, std::move(beam));
    }

    DocumentData m_data;
    CMateriale* m_material;
    CSezione* m_section;
};

// The application with a model open and the check window beside it, kept from one measurement to the next: a million
// nodes take longer to make than to check.
class Opened {
  public:
    using Make = DocumentData (*)(int);

    static Opened& With(Make make, int size) {
        static std::unique_ptr<Opened> kept;
        static const HINSTANCE module = [] {
            qAddPostRoutine([] { kept.reset(); }); // windows end before the toolkit does
            return AfxAttachLinkedModule(&QuovarModuleEntry);
        }();
        benchmark::DoNotOptimize(module);
        if (!kept || kept->m_make != make || kept->m_size != size) {
            kept.reset();
            kept.reset(new Opened(make, size));
        }
        return *kept;
    }

    HostDocument& Document() { return m_workspace.ActiveView()->Document(); }
    // Open from the first call on.
    CDialogDocument& Dialog() {
        HostView& view = *m_workspace.ActiveView();
        if (!m_workspace.ToolOf(view))
            m_workspace.Run(*FindCommand(CDialogCheck::IDD));
        return *m_workspace.ToolOf(view);
    }
    CListBox& List() { return dynamic_cast<CListBox&>(*Dialog().GetDlgItem(CDialogCheck::IDC_LIST_ERRORS)); }

  private:
    Opened(Make make, int size) : m_make(make), m_size(size) {
        m_workspace.NewDocument();
        Document().Replace(make(size));
        CWinApp::PumpMessages();
    }

    Make m_make;
    int m_size;
    Workspace m_workspace;
};

constexpr int million = 1'000'000;

void search(benchmark::State& state, int nodes) {
    HostDocument& document = Opened::With(FrameBuilder::Cube, nodes).Document();
    int structures = 0;
    for (auto _ : state) {
        StructureSearch found;
        found.FindStructures(&document);
        structures = found.GetSizeStructures();
    }
    if (structures != 1)
        state.SkipWithError("the frame is one structure");
}

// The mark is the object's own; taking it away again belongs to the walk.
std::size_t Walk(CNodo& seed, std::vector<CNodo*>& queue) {
    const std::size_t first = queue.size();
    queue.push_back(&seed);
    seed.SetAlready(1);
    for (std::size_t at = first; at < queue.size(); ++at) {
        CNodo* node = queue[at];
        for (int i = 0; i < node->GetSizeElementi(); ++i) {
            CElemento* element = node->GetIndexElemento(i);
            for (int j = 0; j < element->GetSize(); ++j) {
                CNodo* other = element->GetIndexNodo(j);
                if (other->IsAlready())
                    continue;
                other->SetAlready(1);
                queue.push_back(other);
            }
        }
    }
    return queue.size() - first;
}

void PlainWalk(benchmark::State& state, int size) {
    HostDocument& document = Opened::With(FrameBuilder::Cube, size).Document();
    for (auto _ : state) {
        std::vector<CNodo*> reached;
        for (int i = 0; i < document.GetSizeNodi(); ++i)
            if (CNodo* node = document.GetIndexNodo(i); !node->IsAlready())
                benchmark::DoNotOptimize(Walk(*node, reached));
        for (CNodo* node : reached)
            node->SetAlready(0);
    }
}

void check(benchmark::State& state, int nodes) {
    Opened& opened = Opened::With(FrameBuilder::Cube, nodes);
    CDialogDocument& dialog = opened.Dialog();
    for (auto _ : state)
        dialog.Update(nullptr, MODIFICA_CHECK, nullptr);
    if (opened.List().GetCount() != 4)
        state.SkipWithError("the frame is sound");
}

// Asks each object for its own check, and nothing else.
void onePass(benchmark::State& state, int size) {
    HostDocument& document = Opened::With(FrameBuilder::Cube, size).Document();
    const int nodes = document.GetSizeNodi(), elements = static_cast<int>(document.GetSizeElementi());
    for (auto _ : state) {
        CStringArray messages;
        bool sound = true;
        for (int i = 0; i < nodes; ++i)
            sound = document.GetIndexNodo(i)->CheckElemento(messages) && sound;
        for (int i = 0; i < elements; ++i)
            sound = document.GetIndexElemento(i)->CheckElemento(messages) && sound;
        benchmark::DoNotOptimize(sound);
    }
}

using OfSize = void (*)(benchmark::State&, int);

template <OfSize body>
void Million(benchmark::State& state) {
    PlainWalk(state, million);
}
template <OfSize body>
void Sized(benchmark::State& state) {
    PlainWalk(state, static_cast<int>(state.range(0)));
}

// From the notification that all rows are selected to the views' repaint.
void PickAll(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    Opened& opened = Opened::With(FrameBuilder::FaultyChain, rows);
    CDialogDocument& dialog = opened.Dialog();
    CListBox& list = opened.List();
    dialog.Update(nullptr, MODIFICA_CHECK, nullptr);
    list.SetSel(-1, TRUE);
    for (auto _ : state) {
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(CDialogCheck::IDC_LIST_ERRORS, LBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(list.GetSafeHwnd()));
        CWinApp::PumpMessages();
    }
    if (opened.Document().GetSizeTraviSelect() != rows)
        state.SkipWithError("not everything is selected");
}

const bench::Ratio searchRatio("search_structures_1000000_nodes", Million<search>, Million<PlainWalk>, 1.5);
const bench::Ratio checkRatio("check_1000000_nodes_3000000_beams", Million<check>, Million<onePass>, 3);
// The small model fits into the processor's caches and the large one does not: what the plain walk and the plain pass
// lose by that is no fault of ours, so they stand beside.
const bench::Growth searchGrowth("search_structures_growth", Sized<search>, 10'000, million, 100, 1.5);
const bench::Growth walkGrowth("search_structures_growth_of_peer", Sized<PlainWalk>, 10'000, million, 100, 1.5);
const bench::Growth checkGrowth("check_growth", Sized<check>, 10'000, million, 100, 1.5);
const bench::Growth passGrowth("check_growth_of_peer", Sized<onePass>, 10'000, million, 100, 1.5);
const bench::Growth pickGrowth("pick_all_rows_growth", PickAll, 10'000, 100'000, 10, 1.5);

} // namespace
