#include "host/document/ExampleModel.h"

#include "host/document/HostDocument.h"
#include "host/document/NewModel.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"
#include "model/load/Carico.h"

namespace host {

namespace {

// Columns stand on a grid of 3 by 2 places, 5 m apart; the floors are 3.2 m apart.
constexpr int placesX = 3, placesY = 2, levels = 3;
constexpr double bay = 5.0, storey = 3.2; // m

class Example {
  public:
    DocumentData Build() {
        m_data.Info().title = "Edificio a due piani"_t;
        m_data.Info().date = "2024-05-31";
        m_data.Info().notes = "Telaio in cemento armato con solai, un setto e controventi in acciaio."_t;
        BuildProperties();
        BuildCases();
        BuildNodes();
        BuildColumns();
        BuildFloors();
        BuildBracing();
        m_data.CurrentCase() = m_permanent->GetID();
        m_data.Grid().lines[0] = {.positive = placesX - 1, .spacing = bay};
        m_data.Grid().lines[1] = {.positive = placesY - 1, .spacing = bay};
        return std::move(m_data);
    }

  private:
    template <class T>
    T* Named(Kind kind, const CString& name) {
        T* entity = m_data.AppendNew(kind, std::make_unique<T>());
        entity->SetNome(name);
        return entity;
    }

    void BuildProperties() {
        m_concrete = AppendConcrete(m_data);
        m_steel = AppendMaterial(m_data, "S275", 210'000'000, 0.3, 7.85, 1.2e-5);
        m_columnSection = AppendRectangle(m_data, "Pilastro 30x30", 0.30, 0.30);
        m_beamSection = AppendRectangle(m_data, "Trave 30x50", 0.30, 0.50);
        m_barSection = AppendRectangle(m_data, "Piatto 80x10", 0.01, 0.08);
        m_thickness = AppendThickness(m_data, "Spessore 20 cm", 0.20);
    }

    void BuildCases() {
        m_permanent = Named<CCasoCarico>(Kind::LoadCase, "Permanenti");
        m_permanent->AddCarico(new CCaricoPesoProprio({0, 0, -9.80665}));
        m_variable = Named<CCasoCarico>(Kind::LoadCase, "Variabili");
        m_permanentLoad = new CCaricoUniforme({0, 0, -12.5}, CCarico::Global);
        m_permanent->AddCarico(m_permanentLoad);
        m_variableLoad = new CCaricoUniforme({0, 0, -5.0}, CCarico::Global);
        m_variable->AddCarico(m_variableLoad);
        auto* combination = Named<CCombinazione>(Kind::Combination, "SLU");
        combination->AddCDC(m_permanent->GetID(), 1.3);
        combination->AddCDC(m_variable->GetID(), 1.5);
        m_roof = Named<CGruppo>(Kind::Group, "Copertura");
    }

    void BuildNodes() {
        const CVincolo fixed(CVincolo::All);
        for (int level = 0; level < levels; ++level)
            for (int y = 0; y < placesY; ++y)
                for (int x = 0; x < placesX; ++x) {
                    CNodo* node = m_data.AppendNew(Kind::Node,
                                                   std::make_unique<CNodo>(CFPoint(x * bay, y * bay, level * storey)));
                    if (level == 0)
                        node->SetRestraint(&fixed);
                }
    }

    CNodo* Node(int x, int y, int level) { return m_data.Node((level * placesY + y) * placesX + x); }

    template <class T>
    T* Line(Kind kind, CNodo* from, CNodo* to, CMateriale* material, CSezione* section) {
        auto line = std::make_unique<T>();
        line->SetNodi(from, to);
        line->SetMateriale(material->GetID(), material);
        line->SetSezione(section->GetID(), section);
        return m_data.AppendNew(kind, std::move(line));
    }

    template <class T>
    T* Panel(Kind kind, const std::array<CNodo*, 4>& corners) {
        auto panel = std::make_unique<T>();
        for (CNodo* corner : corners)
            panel->AggiungiVertice(corner);
        panel->SetMateriale(m_concrete->GetID(), m_concrete);
        panel->SetThickness(m_thickness->GetID(), m_thickness);
        return m_data.AppendNew(kind, std::move(panel));
    }

    void JoinRoof(Kind kind, CElementoGruppo& element, int level) {
        if (level == levels - 1 && m_roof->AddElemento(CodeOf(kind), element.GetID()))
            element.AddGruppo(m_roof->GetID());
    }

    void BuildColumns() {
        for (int level = 0; level + 1 < levels; ++level)
            for (int y = 0; y < placesY; ++y)
                for (int x = 0; x < placesX; ++x)
                    Line<CTrave>(Kind::Beam, Node(x, y, level), Node(x, y, level + 1), m_concrete, m_columnSection);
    }

    void FloorBeam(CNodo* from, CNodo* to, int level) {
        CTrave* beam = Line<CTrave>(Kind::Beam, from, to, m_concrete, m_beamSection);
        beam->AddCarico(m_permanentLoad, 0);
        beam->AddCarico(m_variableLoad, 0);
        JoinRoof(Kind::Beam, *beam, level);
    }

    void BuildFloors() {
        for (int level = 1; level < levels; ++level) {
            for (int y = 0; y < placesY; ++y)
                for (int x = 0; x + 1 < placesX; ++x)
                    FloorBeam(Node(x, y, level), Node(x + 1, y, level), level);
            for (int x = 0; x < placesX; ++x)
                FloorBeam(Node(x, 0, level), Node(x, 1, level), level);
            for (int x = 0; x + 1 < placesX; ++x) {
                CSolaio* slab = Panel<CSolaio>(
                    Kind::Slab, {Node(x, 0, level), Node(x + 1, 0, level), Node(x + 1, 1, level), Node(x, 1, level)});
                JoinRoof(Kind::Slab, *slab, level);
            }
        }
    }

    // A wall stiffens one end of the building, crossed bars the other.
    void BuildBracing() {
        for (int level = 0; level + 1 < levels; ++level) {
            Panel<CSetto>(Kind::Wall,
                          {Node(0, 0, level), Node(0, 1, level), Node(0, 1, level + 1), Node(0, 0, level + 1)});
            const int end = placesX - 1;
            Line<CAsta>(Kind::Truss, Node(end, 0, level), Node(end, 1, level + 1), m_steel, m_barSection);
            Line<CAsta>(Kind::Truss, Node(end, 1, level), Node(end, 0, level + 1), m_steel, m_barSection);
        }
    }

    DocumentData m_data; // owns everything below
    CMateriale* m_concrete = nullptr;
    CMateriale* m_steel = nullptr;
    CSezione* m_columnSection = nullptr;
    CSezione* m_beamSection = nullptr;
    CSezione* m_barSection = nullptr;
    CSpessore* m_thickness = nullptr;
    CCasoCarico* m_permanent = nullptr;
    CCasoCarico* m_variable = nullptr;
    CCarico* m_permanentLoad = nullptr;
    CCarico* m_variableLoad = nullptr;
    CGruppo* m_roof = nullptr;
};

} // namespace

void BuildExample(HostDocument& document) {
    document.Replace(Example().Build());
}

} // namespace host
