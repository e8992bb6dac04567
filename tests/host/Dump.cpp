#include "tests/host/Dump.h"

#include "host/files/LoadValues.h"
#include "model/CasoCarico.h"
#include "model/Combinazione.h"
#include "model/Gruppo.h"
#include "model/LineaFisica.h"
#include "model/Materiale.h"
#include "model/Poligono.h"
#include "model/Sezione.h"
#include "model/Spessore.h"

#include <cstdio>

namespace {

class Dumper {
  public:
    std::string Text(const DocumentData& data) {
        Number(static_cast<int>(data.Units().length));
        Number(static_cast<int>(data.Units().force));
        Real(data.Tolerance());
        Number(data.CurrentCase());
        for (const Kind kind : allKinds) {
            m_text += "\n== ";
            Number(data.NextId(kind));
            for (int i = 0; i < data.Size(kind); ++i)
                Object(kind, *data.At(kind, i));
        }
        return m_text;
    }

  private:
    void Number(int value) { m_text += std::to_string(value) + " "; }
    void Real(double value) {
        char buffer[40];
        std::snprintf(buffer, sizeof buffer, "%a ", value);
        m_text += buffer;
    }
    void Point(const CFPoint& point) {
        Real(point.x);
        Real(point.y);
        Real(point.z);
    }

    void Object(Kind kind, CElemento& object) {
        m_text += "\n";
        Number(object.GetID());
        Number(static_cast<int>(object.GetLunghezza()));
        Number(static_cast<int>(object.GetForza()));
        Number(object.IsVisible());
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
            Number(carrier.GetIDGruppo(i));
        for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
            Number(carrier.GetIndexIDCasoCarico(i));
            Number(carrier.GetIndexIDCarico(i));
            Number(carrier.GetIndexCarico(i) != nullptr);
        }
    }

    void Node(CNodo& node) {
        Point(*node.GetPunto());
        Number(node.GetVincolo() ? static_cast<int>(node.GetVincolo()->GetMaschera()) : -1);
        for (int i = 0; i < node.GetSizeMolle(); ++i) {
            Number(node.GetIndexMolla(i)->GetTipo());
            Real(node.GetIndexMolla(i)->GetRigidezza().GetValore());
            Point(node.GetIndexMolla(i)->GetDirezione());
        }
        Number(node.GetSizeElementi());
    }

    void Line(CLineaFisica& line) {
        Number(line.GetIDNodoIniziale());
        Number(line.GetIDNodoFinale());
        Number(line.GetIDMateriale());
        Number(line.GetIDSezione());
        Number(line.GetMateriale() ? line.GetMateriale()->GetID() : 0);
        Number(line.GetSezione() ? line.GetSezione()->GetID() : 0);
        Real(line.GetBeta());
        for (int i = 0; i < line.GetSizeSpecifiche(); ++i) {
            auto* release = static_cast<CSpecificheSvincoliTrave*>(line.GetIndexSpecifica(i));
            Number(release->GetID());
            Number(release->GetEstremo());
            for (int j = 0; j < 4; ++j)
                Number(release->GetSvincolo(j));
        }
    }

    void Polygon(CPoligonoFisico& polygon) {
        for (int i = 0; i < polygon.GetSize(); ++i)
            Number(polygon.GetIDVertice(i));
        Number(polygon.GetIDMateriale());
        Number(polygon.GetIDSpessore());
    }

    void Entity(Kind kind, CElemento& object) {
        if (kind == Kind::LoadCase)
            Loads(static_cast<CCasoCarico&>(object));
        if (kind == Kind::Material) {
            auto& m = static_cast<CMateriale&>(object);
            for (const double value : {m.GetE(), m.GetG(), m.GetPoisson(), m.GetDensita(), m.GetAlfa()})
                Real(value);
        }
        if (kind == Kind::Section) {
            auto& s = static_cast<CSezione&>(object);
            for (const double value : {s.GetArea(), s.GetArea2(), s.GetArea3(), s.GetJ(), s.GetI2(), s.GetI3(),
                                       s.GetW2(), s.GetW3(), s.GetBase(), s.GetAltezza()})
                Real(value);
        }
        if (kind == Kind::Thickness)
            Real(static_cast<CSpessore&>(object).GetSpessore());
        if (kind == Kind::Combination) {
            auto& combination = static_cast<CCombinazione&>(object);
            for (int i = 0; i < combination.GetSizeCDC(); ++i) {
                double factor = 0;
                combination.GetFattoreCDC(i, factor);
                Number(combination.GetIDCDC(i));
                Real(factor);
            }
        }
        if (kind == Kind::Group) {
            auto& group = static_cast<CGruppo&>(object);
            for (int i = 0; i < group.GetSizeElementi(); ++i) {
                Number(static_cast<int>(group.GetTipoIndexElemento(i)));
                Number(group.GetIDIndexElemento(i));
            }
        }
    }

    void Loads(CCasoCarico& loadCase) {
        for (int i = 0; i < loadCase.GetSizeCarichi(); ++i) {
            CCarico& load = *loadCase.GetIndexCarico(i);
            m_text += "\n  ";
            Number(load.GetID());
            Number(load.GetIDCasoCarico());
            Number(static_cast<int>(load.GetTipoElemento()));
            Number(load.GetRiferimento());
            Number(load.GetIDInsieme());
            const host::LoadValues list = host::ValuesOf(load);
            for (int j = 0; j < list.count; ++j)
                Real(*list.values[static_cast<std::size_t>(j)]);
        }
    }

    std::string m_text;
};

} // namespace

std::string Dump(const DocumentData& data) {
    return Dumper().Text(data);
}
