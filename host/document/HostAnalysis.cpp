#include "host/document/HostAnalysis.h"

#include "model/element/LineaRisultati.h"
#include "model/entity/Combinazione.h"
#include "platform/core/Collections.h"

#include <algorithm>

namespace host {

AnalysisOutcome HostAnalysis::Run() {
    Clear();
    AnalysisOutcome outcome = Analyse(m_data);
    if (outcome.refusal)
        return outcome;
    m_cases = std::move(outcome.cases);
    outcome.cases.clear();
    m_bRisultatiValidi = 1;
    Show(m_data.CurrentCase());
    return outcome;
}

bool HostAnalysis::Clear() {
    const bool valid = m_bRisultatiValidi != 0;
    m_bRisultatiValidi = 0;
    if (!m_cases.empty()) {
        Show(0); // before the records go that the elements point at
        m_cases = {};
    }
    return valid;
}

bool HostAnalysis::FollowCases() {
    std::erase_if(m_cases, [this](const CaseResults& each) { return !m_data.Find(Kind::LoadCase, each.id); });
    return m_cases.size() == static_cast<std::size_t>(m_data.Size(Kind::LoadCase));
}

CaseResults* HostAnalysis::Find(int caseId) {
    for (CaseResults& each : m_cases)
        if (each.id == caseId)
            return &each;
    return nullptr;
}

const CaseResults* HostAnalysis::Results(int caseId) const {
    return const_cast<HostAnalysis*>(this)->Find(caseId);
}

std::size_t HostAnalysis::LineCount() const {
    return static_cast<std::size_t>(m_data.Size(Kind::Beam) + m_data.Size(Kind::Truss));
}

CLineaRisultati* HostAnalysis::Line(std::size_t index) const {
    const auto beams = static_cast<std::size_t>(m_data.Size(Kind::Beam));
    return index < beams ? m_data.As<CLineaRisultati>(Kind::Beam, static_cast<int>(index))
                         : m_data.As<CLineaRisultati>(Kind::Truss, static_cast<int>(index - beams));
}

HostAnalysis::Factors HostAnalysis::FactorsOf(int caseId) const {
    Factors factors;
    auto* combination = m_data.FindAs<CCombinazione>(Kind::Combination, caseId);
    for (int i = 0; combination && i < combination->GetSizeCDC(); ++i) {
        double factor = 0;
        combination->GetFattoreCDC(i, factor);
        factors.emplace_back(combination->GetIDCDC(i), factor);
    }
    return factors;
}

bool HostAnalysis::IsShown(int caseId) const {
    return m_shown == caseId && m_shownFactors == FactorsOf(caseId);
}

void HostAnalysis::Show(int caseId) {
    m_shownFactors = FactorsOf(caseId);
    auto* combination = m_data.FindAs<CCombinazione>(Kind::Combination, caseId);
    if (combination && !m_cases.empty()) {
        const CaseResults sum = Combine(*combination, m_cases);
        m_shown = caseId;
        ShowRecords(&sum);
        return;
    }
    const CaseResults* results = Find(caseId);
    m_shown = results ? caseId : 0;
    ShowRecords(results);
}

// In the middle of a command the model may have lost elements while the results still stand: their numbers tell.
void HostAnalysis::ShowRecords(const CaseResults* results) {
    std::vector<CTraveRisultati> records; // the former ones live until the lines have let them go
    if (results)
        records = results->lines.All();
    for (CTraveRisultati& record : records)
        record.SetCaseScale(results->scale);
    for (std::size_t i = 0, count = LineCount(); i < count; ++i)
        Line(i)->SetRisultati(i < records.size() && records[i].GetID() == Line(i)->GetID() ? &records[i] : nullptr);
    m_records = std::move(records);
    for (int i = 0; i < m_data.Size(Kind::Node); ++i)
        m_data.Node(i)->SetReactions(nullptr);
    if (!results)
        return;
    for (const CaseResults::Reaction& reaction : results->reactions) {
        // The record holds what the node acts with on its support.
        const auto& r = reaction.values;
        const CNodoReazioniVincolari record(-r[0], -r[1], -r[2], -r[3], -r[4], -r[5]);
        if (CNodo* node = m_data.Node(reaction.node))
            node->SetReactions(&record);
    }
}

int HostAnalysis::LeggiRisultati(int idCaso, CObArray& out, int) {
    const CaseResults* results = m_bRisultatiValidi ? Results(idCaso) : nullptr;
    if (!results)
        return 0;
    for (std::size_t i = 0; i < results->lines.size(); ++i)
        out.Add(new CTraveRisultati(results->lines[i]));
    return 1;
}

bool HostAnalysis::Fits(const CObArray& records) const {
    if (static_cast<std::size_t>(records.GetSize()) != LineCount())
        return false;
    for (std::size_t i = 0, count = LineCount(); i < count; ++i) {
        const auto* record = DYNAMIC_DOWNCAST(CTraveRisultati, records.GetAt(static_cast<int>(i)));
        if (!record || record->GetID() != Line(i)->GetID())
            return false;
    }
    return true;
}

int HostAnalysis::AggiornaRiferimentiRisultati(CObArray& risultati) {
    if (!Fits(risultati))
        return 0;
    for (std::size_t i = 0, count = LineCount(); i < count; ++i)
        Line(i)->SetRisultati(static_cast<CTraveRisultati*>(risultati.GetAt(static_cast<int>(i))));
    return 1;
}

int HostAnalysis::CreaRisultati(int idCaso, CObArray& risultati, int) {
    CaseResults* results = m_bRisultatiValidi ? Find(idCaso) : nullptr;
    if (!results || !Fits(risultati))
        return 0;
    std::vector<CTraveRisultati> records;
    for (CObject* record : risultati)
        records.push_back(*static_cast<CTraveRisultati*>(record));
    results->lines = LineResults(records, &m_cases.front().lines);
    results->scale = ScaleOf(records);
    if (idCaso == m_shown) // in place: the lines point at them
        std::copy(records.begin(), records.end(), m_records.begin());
    return 1;
}

int HostAnalysis::RipristinaRisultati() {
    Show(m_shown);
    return m_shown != 0;
}

} // namespace host
