#include "tests/host/Dump.h"

#include "host/document/HostDocument.h"
#include "host/files/LoadValues.h"
#include "model/element/LineaFisica.h"
#include "model/element/PoligonoFisico.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <gtest/gtest.h>

#include <cstdio>

using namespace host;

namespace {

class Dumper {
  public:
    std::string Text(const DocumentData& data) {
        Add(data.Units().length, data.Units().force, data.Tolerance(), data.CurrentCase());
        for (const Kind kind : allKinds) {
            m_text += "\n== ";
            Add(data.NextId(kind));
            for (int i = 0; i < data.Size(kind); ++i)
                Object(kind, *data.At(kind, i));
        }
        const ConstructionGrid& grid = data.Grid();
        m_text += "\n== ";
        Add(grid.shown, grid.plane, grid.tilt, grid.origin, grid.length);
        for (const ConstructionGrid::Lines& lines : grid.lines)
            Add(lines.negative, lines.positive, lines.spacing, lines.angle);
        return m_text;
    }

  private:
    template <class... Values>
    void Add(const Values&... values) {
        (One(values), ...);
    }
    template <class Whole> // or an enumerator
    void One(const Whole& value) {
        m_text += std::to_string(static_cast<long>(value)) + " ";
    }
    void One(const double& value) {
        char buffer[40];
        std::snprintf(buffer, sizeof buffer, "%a ", value);
        m_text += buffer;
    }
    void One(const CFPoint& point) { Add(point.x, point.y, point.z); }

    void Object(Kind kind, CElemento& object) {
        m_text += "\n";
        Add(object.GetID(), object.GetLunghezza(), object.GetForza(), object.IsVisible());
        if (auto* entity = DYNAMIC_DOWNCAST(CElementoStrutturale, &object))
            m_text += entity->GetNome().ToUtf8() + "|" + entity->GetTipo().ToUtf8() + "|";
        if (auto* carrier = DYNAMIC_DOWNCAST(CElementoCarico, &object))
            Carrier(*carrier);
        if (kind == Kind::Node)
            Node(static_cast<CNodo&>(object));
        else if (IsLineKind(kind))
            Line(static_cast<CLineaFisica&>(object));
        else if (IsPolygonKind(kind))
            Polygon(static_cast<CPoligonoFisico&>(object));
        else
            Entity(kind, object);
    }

    void Carrier(CElementoCarico& carrier) {
        for (int i = 0; i < carrier.GetSizeGruppi(); ++i)
            Add(carrier.GetIDGruppo(i));
        for (int i = 0; i < carrier.GetSizeCarichi(); ++i)
            Add(carrier.GetIndexIDCasoCarico(i), carrier.GetIndexIDCarico(i), carrier.GetIndexCarico(i) != nullptr);
    }

    void Node(CNodo& node) {
        Add(*node.GetPunto(), node.GetVincolo() ? static_cast<int>(node.GetVincolo()->GetMask()) : -1);
        for (int i = 0; i < node.GetSizeMolle(); ++i) {
            CMolla& spring = *node.GetIndexMolla(i);
            Add(spring.GetTipo(), spring.GetStiffness().GetValue(), spring.GetDirection());
        }
        Add(node.GetSizeElementi());
    }

    void Line(CLineaFisica& line) {
        Add(line.GetIDNodoIniziale(), line.GetIDNodoFinale(), line.GetIDMateriale(), line.GetIDSezione(),
            line.GetMateriale() ? line.GetMateriale()->GetID() : 0, line.GetSezione() ? line.GetSezione()->GetID() : 0,
            line.GetBeta());
        for (int i = 0; i < line.GetSizeSpecifiche(); ++i) {
            auto* release = static_cast<CSpecificheSvincoliTrave*>(line.GetIndexSpecifica(i));
            Add(release->GetID(), release->GetEnd());
            for (int j = 0; j < 4; ++j)
                Add(release->GetRelease(j));
        }
    }

    void Polygon(CPoligonoFisico& polygon) {
        for (int i = 0; i < polygon.GetSize(); ++i)
            Add(polygon.GetIDVertice(i));
        Add(polygon.GetIDMateriale(), polygon.GetIDSpessore());
    }

    void Entity(Kind kind, CElemento& object) {
        if (kind == Kind::LoadCase)
            Loads(static_cast<CCasoCarico&>(object));
        if (kind == Kind::Material) {
            auto& m = static_cast<CMateriale&>(object);
            Add(m.GetE(), m.GetG(), m.GetPoisson(), m.GetDensity(), m.GetAlpha());
        }
        if (kind == Kind::Section) {
            auto& s = static_cast<CSezione&>(object);
            Add(s.GetArea(), s.GetArea2(), s.GetArea3(), s.GetJ(), s.GetI2(), s.GetI3(), s.GetW2(), s.GetW3(),
                s.GetBase(), s.GetHeight());
        }
        if (kind == Kind::Thickness)
            Add(static_cast<CSpessore&>(object).GetThickness());
        if (kind == Kind::Combination) {
            auto& combination = static_cast<CCombinazione&>(object);
            for (int i = 0; i < combination.GetSizeCDC(); ++i) {
                double factor = 0;
                combination.GetFattoreCDC(i, factor);
                Add(combination.GetIDCDC(i), factor);
            }
        }
        if (kind == Kind::Group) {
            auto& group = static_cast<CGruppo&>(object);
            for (int i = 0; i < group.GetSizeElementi(); ++i)
                Add(group.GetElementKindAt(i), group.GetElementIdAt(i));
        }
    }

    void Loads(CCasoCarico& loadCase) {
        for (int i = 0; i < loadCase.GetSizeCarichi(); ++i) {
            CCarico& load = *loadCase.GetIndexCarico(i);
            m_text += "\n  ";
            Add(load.GetID(), load.GetIDCasoCarico(), load.GetTipoElemento(), load.GetReference(), load.GetSetId());
            const host::LoadValues list = host::ValuesOf(load);
            for (int j = 0; j < list.count; ++j)
                Add(*list.values[static_cast<std::size_t>(j)]);
        }
    }

    std::string m_text;
};

std::string WithSelection(HostDocument& document) {
    std::string text = Dump(document.Data()) + "\nselected";
    for (CElemento* element : document.Selection().All())
        text +=
            " " + std::to_string(static_cast<int>(element->GetTipoElemento())) + ":" + std::to_string(element->GetID());
    return text;
}

} // namespace

std::string Dump(const DocumentData& data) {
    return Dumper().Text(data);
}

void ExpectExact(HostDocument& document, const std::function<void()>& command, const std::function<void()>& undo,
                 const std::function<void()>& redo) {
    const std::string before = WithSelection(document);
    const std::size_t steps = document.Undo().UndoCount();
    command();
    ASSERT_EQ(document.Undo().UndoCount(), steps + 1);
    const std::string after = WithSelection(document);
    EXPECT_NE(before, after);
    for (int round = 0; round < 2; ++round) {
        undo();
        EXPECT_EQ(WithSelection(document), before);
        redo();
        EXPECT_EQ(WithSelection(document), after);
    }
}
