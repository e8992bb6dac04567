#include "tests/host/AnalysisModel.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace host;

AnalysisModel::AnalysisModel() : firstCase(document.GetIndexCasoCarico(0)) {
    auto newMaterial = std::make_unique<CMateriale>();
    newMaterial->SetE(E);
    newMaterial->SetG(G);
    newMaterial->SetAlpha(alpha);
    newMaterial->SetDensity(density);
    material = document.AddNew(std::move(newMaterial));
    auto newSection = std::make_unique<CSezione>();
    newSection->SetArea(A);
    newSection->SetJ(J);
    newSection->SetI2(I2);
    newSection->SetI3(I3);
    section = document.AddNew(std::move(newSection));
}

CNodo* AnalysisModel::Node(double x, double y, double z, unsigned fixed) {
    CFPoint place(x, y, z);
    CNodo* node = document.AddNodo(place, nullptr, 0);
    const CVincolo restraint(fixed);
    document.Modify(*node, [&] { node->SetRestraint(&restraint); });
    return node;
}

CTrave* AnalysisModel::Beam(CNodo* from, CNodo* to) {
    CTrave* beam = document.AddTrave(from->GetID(), to->GetID(), nullptr);
    document.Modify(*beam, [&] {
        beam->SetMateriale(material->GetID(), material);
        beam->SetSezione(section->GetID(), section);
    });
    return beam;
}

CAsta* AnalysisModel::Truss(CNodo* from, CNodo* to) {
    CAsta* bar = document.AddAsta(from->GetID(), to->GetID(), nullptr);
    document.Modify(*bar, [&] {
        bar->SetMateriale(material->GetID(), material);
        bar->SetSezione(section->GetID(), section);
    });
    return bar;
}

void AnalysisModel::Release(CTrave* beam, int end, int n, int t, int m2, int m3) {
    document.Modify(*beam, [&] { beam->AddSpecifica(new CSpecificheSvincoliTrave(end, n, t, m2, m3)); });
}

const host::CaseResults& AnalysisModel::Run() {
    const host::AnalysisOutcome outcome = document.RunAnalysis();
    static const host::CaseResults none;
    if (outcome.refusal) {
        ADD_FAILURE() << outcome.refusal->message.ToUtf8();
        return none;
    }
    document.SelectCasoCarico(firstCase->GetID());
    return *document.Analysis().Results(firstCase->GetID());
}

CString AnalysisModel::Refusal() {
    const host::AnalysisOutcome outcome = document.RunAnalysis();
    return outcome.refusal ? outcome.refusal->message : CString();
}

double AnalysisModel::Moved(CNodo* node, int component) {
    const host::CaseResults* results = document.Analysis().Results(firstCase->GetID());
    const int index = document.Data().IndexOf(Kind::Node, node->GetID());
    return results ? results->displacements[static_cast<std::size_t>(index)][static_cast<std::size_t>(component)]
                   : std::nan("");
}

double AnalysisModel::Reaction(CNodo* node, int component) {
    CNodoReazioniVincolari* reaction = node->GetReazioniVincolari();
    return reaction ? -reaction->GetReaction(component) : std::nan("");
}

double AnalysisModel::Force(CLineaRisultati* line, int kind, double x, CTraveRisultati::Side side) {
    double value;
    return line->GetRisultato(kind, x, side, value) ? value : std::nan("");
}

void ExpectClose(double value, double expected, double scale) {
    EXPECT_NEAR(value, expected, 1e-9 * std::max(std::abs(expected), scale));
}
