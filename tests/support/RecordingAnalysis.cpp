#include "tests/support/RecordingAnalysis.h"

#include <algorithm>

namespace {

std::unique_ptr<CElementoRisultati> Copy(CElementoRisultati& record) {
    auto copy = std::make_unique<CElementoRisultati>();
    copy->SetID(record.GetID());
    copy->SetNodeResultCount(record.GetNodeResultCount());
    for (int i = 0; i < record.GetNodeResultCount(); ++i)
        copy->GetNodeResults(i)->GetV1() = record.GetNodeResults(i)->GetV1();
    return copy;
}

} // namespace

RecordingAnalysis::~RecordingAnalysis() = default;

void RecordingAnalysis::Store(int idCaso, int idTrave, const std::vector<double>& v1) {
    auto record = std::make_unique<CElementoRisultati>();
    record->SetID(idTrave);
    record->SetNodeResultCount(static_cast<int>(v1.size()));
    for (std::size_t i = 0; i < v1.size(); ++i)
        record->GetNodeResults(static_cast<int>(i))->GetV1() = v1[i];
    m_records[idCaso].push_back(std::move(record));
}

std::vector<double> RecordingAnalysis::Stored(int idCaso, int idTrave) const {
    std::vector<double> v1;
    const auto found = m_records.find(idCaso);
    if (found == m_records.end())
        return v1;
    for (const auto& record : found->second)
        for (int i = 0; record->GetID() == idTrave && i < record->GetNodeResultCount(); ++i)
            v1.push_back(record->GetNodeResults(i)->GetV1());
    return v1;
}

int RecordingAnalysis::LeggiRisultati(int idCaso, CObArray& out, int flag) {
    m_journal.Add("LeggiRisultati", idCaso, flag);
    for (const auto& record : m_records[idCaso])
        if (result)
            out.Add(Copy(*record).release());
    return result;
}

int RecordingAnalysis::AggiornaRiferimentiRisultati(CObArray& risultati) {
    m_journal.Add("AggiornaRiferimentiRisultati", risultati.GetSize());
    if (!result || !linked)
        return 0;
    for (CObject* object : risultati) {
        auto* record = static_cast<CElementoRisultati*>(object);
        const auto beam = std::find_if(m_travi.begin(), m_travi.end(),
                                       [record](const auto& each) { return each->GetID() == record->GetID(); });
        if (beam == m_travi.end())
            continue;
        m_own.emplace(beam->get(), (*beam)->GetRisultati());
        (*beam)->SetRisultati(record);
    }
    return 1;
}

int RecordingAnalysis::CreaRisultati(int idCaso, CObArray& risultati, int flag) {
    m_journal.Add("CreaRisultati", idCaso, risultati.GetSize(), flag);
    auto& records = m_records[idCaso];
    records.clear();
    for (CObject* object : risultati)
        records.push_back(Copy(*static_cast<CElementoRisultati*>(object)));
    return result;
}

int RecordingAnalysis::RipristinaRisultati() {
    m_journal.Add("RipristinaRisultati");
    for (const auto& [beam, own] : m_own)
        beam->SetRisultati(own);
    m_own.clear();
    return result;
}
