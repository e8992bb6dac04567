// The analysis of a document: its switches, and the results, which the elements show for the current load case or
// combination.
#pragma once

#include "dialogs/frame/host/QuovarAnalisi.h"
#include "host/analysis/Analysis.h"

class CLineaRisultati;

namespace host {

// It owns the results that elements point at. They go as soon as the model changes: whoever owns the model calls Clear.
class HostAnalysis : public CQuovarAnalisi {
  public:
    explicit HostAnalysis(DocumentData& data) : m_data(data) { m_bAnalisiStatica = 1; }

    // Analyses the model and shows the current case; former results go either way. The cases of the outcome have moved
    // in here.
    AnalysisOutcome Run();
    // Makes the elements show the results of a load case or combination; without such results, none.
    void Show(int caseId);
    // Takes the results away. True when there were valid ones.
    bool Clear();
    // Of a load case; null without results.
    const CaseResults* Results(int caseId) const;
    const std::vector<CaseResults>& Cases() const { return m_cases; }

    // Beams, then truss members, in document order. Results of a combination are not stored: 0.
    int LeggiRisultati(int idCaso, CObArray& out, int flag) override;
    int AggiornaRiferimentiRisultati(CObArray& risultati) override;
    int CreaRisultati(int idCaso, CObArray& risultati, int flag) override;
    int RipristinaRisultati() override;

  private:
    void ShowRecords(const CaseResults* results); // null shows none
    CLineaRisultati* Line(std::size_t index) const;
    std::size_t LineCount() const;
    bool Fits(const CObArray& records) const;
    CaseResults* Find(int caseId);

    DocumentData& m_data;
    std::vector<CaseResults> m_cases;
    std::vector<CTraveRisultati> m_records; // of what is shown, which the lines point at
    int m_shown = 0;                        // case or combination; 0 none
};

} // namespace host
