#include "tests/monkey/Consistency.h"

#include "host/document/HostDocument.h"
#include "host/files/FileError.h"
#include "host/files/ProjectFile.h"
#include "model/element/LineaFisica.h"
#include "model/element/PoligonoFisico.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"
#include "tests/host/Dump.h"

#include <sstream>
#include <unordered_set>
#include <vector>

using namespace host;

namespace {

class Checker {
  public:
    explicit Checker(const DocumentData& data) : m_data(data) {}

    std::string Fault() {
        for (const Kind kind : allKinds)
            for (int i = 0; i < m_data.Size(kind); ++i)
                Object(kind, *m_data.At(kind, i));
        const int current = m_data.CurrentCase();
        Require(current == 0 || Case(current) || m_data.Find(Kind::Combination, current), "current case");
        return m_fault;
    }

  private:
    void Require(bool holds, const char* what) {
        if (!holds && m_fault.empty())
            m_fault = m_where + what;
    }

    CCasoCarico* Case(int id) const { return m_data.FindAs<CCasoCarico>(Kind::LoadCase, id); }

    void Object(Kind kind, CElemento& object) {
        const int id = object.GetID();
        m_where = "kind " + std::to_string(static_cast<int>(kind)) + " number " + std::to_string(id) + ": ";
        Kind own = Kind::Node;
        Require(KindOf(object, own) && own == kind, "its class");
        Require(id > 0 && m_data.Find(kind, id) == &object, "search by number");
        Require(m_data.NextId(kind) == 0 || m_data.NextId(kind) > id, "next number");
        Require(!object.IsAlready(), "a walk left its mark");
        Require(object.GetLunghezza() == m_data.Units().length && object.GetForza() == m_data.Units().force, "units");
        if (kind == Kind::Node)
            Node(static_cast<CNodo&>(object));
        else if (IsLineKind(kind))
            Line(static_cast<CLineaFisica&>(object));
        else if (IsPolygonKind(kind))
            Polygon(static_cast<CPoligonoFisico&>(object));
        else if (kind == Kind::LoadCase)
            Loads(static_cast<CCasoCarico&>(object));
        else if (kind == Kind::Combination)
            Cases(static_cast<CCombinazione&>(object));
        else if (kind == Kind::Group)
            Members(static_cast<CGruppo&>(object));
        if (IsSelectableKind(kind))
            Carrier(kind, static_cast<CElementoCarico&>(object));
    }

    void Node(CNodo& node) {
        // The limit is a length; a model shown in smaller units has larger numbers, and rounds.
        const double metres = CGrandezza::_LengthFactor(m_data.Units().length, Lunghezza::Metres) / (1 + 1e-9);
        Require(IsUsablePlace(*node.GetPunto() * metres), "place");
        Require(m_data.NodeAt(*node.GetPunto(), 0, [&node](CNodo& found) { return &found == &node; }) == &node,
                "search by place");
        std::unordered_set<CElemento*> met;
        for (int i = 0; i < node.GetSizeElementi(); ++i) {
            CElemento* element = node.GetIndexElemento(i);
            Require(element && m_data.Contains(*element), "an element that the model does not have");
            if (!m_fault.empty())
                return;
            Require(met.insert(element).second, "an element twice");
            bool listed = false;
            for (int j = 0; j < element->GetSize(); ++j)
                listed = listed || element->GetIndexNodo(j) == &node;
            Require(listed, "an element that does not have it");
        }
    }

    void Corner(CElemento& element, CNodo* node, int id) {
        Require(node && m_data.Contains(*node) && node->GetID() == id, "a node that the model does not have");
        if (!m_fault.empty())
            return;
        bool listed = false;
        for (int i = 0; i < node->GetSizeElementi(); ++i)
            listed = listed || node->GetIndexElemento(i) == &element;
        Require(listed, "a node that does not list it");
    }

    template <class Entity>
    void Link(Kind kind, Entity* linked, int id) {
        Require(id == 0 ? !linked : linked && m_data.Find(kind, id) == linked, "material, section or thickness");
    }

    void Line(CLineaFisica& line) {
        Corner(line, line.GetNodoIniziale(), line.GetIDNodoIniziale());
        Corner(line, line.GetNodoFinale(), line.GetIDNodoFinale());
        Require(line.GetNodoIniziale() != line.GetNodoFinale(), "one node at both ends");
        Link(Kind::Material, line.GetMateriale(), line.GetIDMateriale());
        Link(Kind::Section, line.GetSezione(), line.GetIDSezione());
    }

    void Polygon(CPoligonoFisico& polygon) {
        Require(polygon.GetSize() >= 3, "vertices");
        for (int i = 0; i < polygon.GetSize(); ++i)
            Corner(polygon, polygon.GetVertice(i), polygon.GetIDVertice(i));
        Link(Kind::Material, polygon.GetMateriale(), polygon.GetIDMateriale());
        Link(Kind::Thickness, polygon.GetThickness(), polygon.GetIDSpessore());
    }

    void Loads(CCasoCarico& loadCase) {
        Require(!m_data.Find(Kind::Combination, loadCase.GetID()), "the number of a combination");
        for (int i = 0; i < loadCase.GetSizeCarichi(); ++i) {
            CCarico* load = loadCase.GetIndexCarico(i);
            Require(load && load->GetIDCasoCarico() == loadCase.GetID() && !load->IsAlready(), "a load of another");
            Require(load && loadCase.GetCarico(load->GetID(), nullptr) == load, "search of a load");
            Require(load && load->GetLunghezza() == m_data.Units().length, "units of a load");
        }
    }

    void Cases(CCombinazione& combination) {
        for (int i = 0; i < combination.GetSizeCDC(); ++i)
            Require(Case(combination.GetIDCDC(i)), "a load case that the model does not have");
    }

    void Members(CGruppo& group) {
        for (int i = 0; i < group.GetSizeElementi(); ++i) {
            CElementoGruppo* member = nullptr;
            for (const Kind kind : allKinds)
                if (IsSelectableKind(kind) && CodeOf(kind) == group.GetElementKindAt(i))
                    member = m_data.FindAs<CElementoGruppo>(kind, group.GetElementIdAt(i));
            Require(member, "a member that the model does not have");
            Require(!member || member->IsGruppo(group.GetID()), "a member that does not know it");
        }
    }

    void Carrier(Kind kind, CElementoCarico& carrier) {
        for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
            CCasoCarico* loadCase = Case(carrier.GetIndexIDCasoCarico(i));
            CCarico* load = loadCase ? loadCase->GetCarico(carrier.GetIndexIDCarico(i), nullptr) : nullptr;
            Require(load && carrier.GetIndexCarico(i) == load, "a load that the model does not have");
        }
        for (int i = 0; i < carrier.GetSizeGruppi(); ++i) {
            auto* group = m_data.FindAs<CGruppo>(Kind::Group, carrier.GetIDGruppo(i));
            Require(group && group->IsElemento(CodeOf(kind), carrier.GetID()), "a group that does not have it");
        }
    }

    const DocumentData& m_data;
    std::string m_where, m_fault;
};

std::string SelectionFault(HostDocument& document) {
    HostSelection& selection = document.Selection();
    std::unordered_set<CElemento*> selected;
    for (CElemento* element : selection.All())
        if (!element || !document.Data().Contains(*element) || !element->IsSelect() || !selected.insert(element).second)
            return "the selection holds what it must not";
    std::size_t flags = 0;
    int counted = 0;
    for (const Kind kind : allKinds) {
        for (int i = 0; i < document.Data().Size(kind); ++i)
            flags += document.Data().At(kind, i)->IsSelect() ? 1 : 0;
        for (int i = 0; i < selection.Size(kind); ++i, ++counted)
            if (Kind own = Kind::Node;
                !selected.count(selection.At(kind, i)) || !KindOf(*selection.At(kind, i), own) || own != kind)
                return "the selection of a kind holds another";
    }
    const std::size_t size = selected.size();
    return flags == size && static_cast<std::size_t>(counted) == size &&
                   static_cast<std::size_t>(document.GetListaSelezione()->GetCount()) == size
               ? ""
               : "the selection counts wrong";
}

// The first line in which the texts differ.
std::string Difference(const std::string& before, const std::string& after) {
    std::istringstream one(before), other(after);
    std::string a, b;
    do {
        if (!std::getline(one, a))
            a = "(nothing)";
        if (!std::getline(other, b))
            b = "(nothing)";
    } while (a == b && (one || other));
    return "\n  before " + a + "\n  after  " + b;
}

// A file keeps neither the next numbers, but those that are in use, nor the sign of a zero.
std::string AsFiled(const std::string& dump) {
    std::istringstream lines(dump);
    std::string kept;
    for (std::string line; std::getline(lines, line);)
        kept += (line.starts_with("==") ? "==" : line) + "\n";
    for (std::size_t at = 0; (at = kept.find("-0x0p+0", at)) != std::string::npos;)
        kept.erase(at, 1);
    return kept;
}

} // namespace

std::string ModelFault(const DocumentData& data) {
    return Checker(data).Fault();
}

std::string DocumentFault(HostDocument& document) {
    const std::string fault = ModelFault(document.Data());
    return fault.empty() ? SelectionFault(document) : fault;
}

std::string UndoFault(HostDocument& document) {
    HostUndo& undo = document.Undo();
    document.Idle();
    const std::size_t position = undo.UndoCount(), steps = position + undo.RedoCount();
    const int modified = document.IsModified();
    std::vector<std::string> known(steps + 1);
    const auto look = [&](const char* verb, const CString& name) -> std::string {
        std::string& before = known[undo.UndoCount()];
        const std::string after = Dump(document.Data()), fault = DocumentFault(document);
        if (!fault.empty())
            return std::string(verb) + " " + name.ToUtf8() + " leaves " + fault;
        if (before.empty())
            before = after;
        return before == after
                   ? ""
                   : std::string(verb) + " " + name.ToUtf8() + " gives another state:" + Difference(before, after);
    };
    std::string fault = look("staying", {});
    const auto go = [&](std::size_t to) {
        while (fault.empty() && undo.UndoCount() != to) {
            const bool back = undo.UndoCount() > to;
            const CString name = back ? undo.UndoName() : undo.RedoName();
            if (!(back ? undo.Undo() : undo.Redo()))
                fault = "a step is missing";
            else
                fault = look(back ? "undo of" : "redo of", name);
        }
    };
    for (const std::size_t to : {std::size_t(0), steps, position})
        go(to);
    if (fault.empty() && document.IsModified() != modified)
        fault = "undo and redo to the same state changed what counts as unsaved";
    return fault;
}

std::string FileFault(const DocumentData& data, const std::string& folder) {
    const std::string path = folder + "/prova.asg";
    try {
        SaveProject(data, path, "prova");
        const DocumentData again = LoadProject(path);
        const std::string before = AsFiled(Dump(data)), after = AsFiled(Dump(again));
        return before == after ? ModelFault(again) : "the file gives another model:" + Difference(before, after);
    } catch (const FileError& error) {
        return std::string("a model cannot be filed: ") + error.what();
    }
}
