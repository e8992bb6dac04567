#include "tests/host/TestModel.h"

#include "host/document/ExampleModel.h"
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/load/Carico.h"

using namespace host;

namespace {

void AddLoads(HostDocument& document) {
    CCasoCarico* loadCase = document.CreaCasoCarico();
    document.Modify(*loadCase, [&] { loadCase->SetNome("Neve – più di 1000 m"_t); });
    CTrave* beam = document.GetIndexTrave(3);
    CNodo* node = document.GetIndexNodo(7);
    const auto carry = [&](CElementoCarico* carrier, std::unique_ptr<CCarico> load) {
        CCarico* added = document.AddCarico(*loadCase, std::move(load));
        document.Modify(*carrier, [&] { carrier->AddCarico(added, 0); });
    };
    carry(node, std::make_unique<CCaricoNodale>(CFPoint(1, -2, 3), CFPoint(0.1, 0.2, 0.3)));
    carry(document.GetIndexNodo(0), std::make_unique<CCaricoSpostamento>(CFPoint(0.01, 0, 0), CFPoint(0, 0.001, 0)));
    carry(beam, std::make_unique<CCaricoUniforme>(CFPoint(0, 1.5, -2.5), CCarico::Local));
    auto trapezoid = std::make_unique<CCaricoTrapezoidale>();
    trapezoid->GetStretch(1) = {0.5, 1.5, -4, 2};
    trapezoid->GetStretch(2) = {0, 2, 1, 1};
    carry(beam, std::move(trapezoid));
    carry(beam, std::make_unique<CCaricoConcentrato>(CFPoint(0, 7, -9), 1.25, CCarico::Local));
    auto heat = std::make_unique<CCaricoTemperatura>();
    heat->GetTemperature() = 25;
    heat->GetGradient2() = 3;
    heat->GetAlpha() = 1.2e-5;
    carry(beam, std::move(heat));
}

} // namespace

void BuildEverything(HostDocument& document) {
    BuildExample(document);
    document.Data().Info().title = "Prova: perché no?"_t;
    document.Data().Grid() = {false, 2, 33.3, {1, 2, 3}, {{3, 40, 0.25, 12.5}, {-7, 4, -2.5, 80}}, Lunghezza::Inches};
    AddLoads(document);
    CTrave* beam = document.GetIndexTrave(0);
    document.Modify(*beam, [&] {
        beam->AddSpecifica(new CSpecificheSvincoliTrave(0, 0, 1, 1, 0));
        beam->AddSpecifica(new CSpecificheSvincoliTrave(1, 0, 0, 0, 1));
        beam->SetBeta(33.3);
        beam->SetVisible(0);
    });
    CNodo* node = document.GetIndexNodo(10);
    document.Modify(*node, [&] {
        node->AddSpring(CMolla(CMolla::Translational, 1234.5, {0, 0, 1}));
        node->AddSpring(CMolla(CMolla::Rotational, 77, {1, 0, 0}));
    });
    CFPoint place(2.5, 2.5, 9);
    document.AddNodo(place, nullptr, 1);
    document.Remove({document.GetIndexAsta(1), document.GetIndexTrave(12)}); // leaves gaps in the numbers
}

void BuildCantilever(HostDocument& document) {
    document.AddNew(std::make_unique<CMateriale>())->SetNome("Calcestruzzo");
    document.AddNew(std::make_unique<CSezione>());
    CFPoint foot(0, 0, 0), tip(3, 0, 0);
    CNodo* node = document.AddNodo(foot, nullptr, 0);
    const CVincolo fixed(CVincolo::All);
    document.Modify(*node, [&] { node->SetRestraint(&fixed); });
    document.AddNodo(tip, nullptr, 0);
    document.AddTrave(1, 2, nullptr);
}
