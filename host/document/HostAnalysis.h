// The analysis of a document: its switches, and the results, which the elements show for the current load case or
// combination.
#pragma once

#include "dialogs/frame/host/QuovarAnalisi.h"
#include "host/analysis/Analysis.h"

class CLineaRisultati;

namespace host {

// It owns the results that elements point at. Whoever owns the model calls Clear as soon as something changes that they
// depend on, and FollowCases after every other change.
class HostAnalysis : public CQuovarAnalisi {
  public:
    explicit HostAnalysis(DocumentData& data) : m_data(data) { m_bAnalisiStatica = 1; }

    // Analyses the model and shows the current case; former results go either way. The cases of the outcome have moved
    // in here.
    AnalysisOutcome Run();
    // Makes the elements show the results of a load case or combination; without such results, none.
    void Show(int caseId);
    // Whether that is what they show, a combination as the sum that it is now.
    bool IsShown(int caseId) const;
    // Takes the results away. True when there were valid ones.
    bool Clear();
    // Lets go of the results of load cases that the document no longer has. False when one of its cases has none: such
    // results are not those of the model.
    bool FollowCases();
    // Of a load case; null without results.
    const CaseResults* Results(int caseId) const;
    const std::vector<CaseResults>& Cases() const { return m_cases; }

    // Beams, then truss members, in document order. Results of a combination are not stored: 0.
    int LeggiRisultati(int idCaso, CObArray& out, int flag) override;
    int AggiornaRiferimentiRisultati(CObArray& risultati) override;
    int CreaRisultati(int idCaso, CObArray& risultati, int flag) override;
    int RipristinaRisultati() override;

  private:
    using Factors = std::vector<std::pair<int, double>>;

    Factors FactorsOf(int caseId) const;          // by case; empty for a load case
    void ShowRecords(const CaseResults* results); // null shows none
    CLineaRisultati* Line(std::size_t index) const;
    std::size_t LineCount() const;
    bool Fits(const CObArray& records) const;
    CaseResults* Find(int caseId);

    DocumentData& m_data;
    std::vector<CaseResults> m_cases;
    std::vector<CTraveRisultati> m_records; // of what is shown, which the lines point at
    int m_shown = 0;                        // case or combination; 0 none
    Factors m_shownFactors;                 // of a combination
};

} // namespace host
