// The results of a recording document.
#pragma once

#include "dialogs/frame/host/QuovarAnalisi.h"
#include "model/element/Trave.h"
#include "model/result/ElementoRisultati.h"
#include "platform/core/Collections.h"
#include "tests/support/Journal.h"

#include <map>
#include <memory>
#include <vector>

// Keeps result records of beams by load case, and lends them to the beams as an analysis does.
class RecordingAnalysis : public CQuovarAnalisi {
  public:
    RecordingAnalysis(Journal& journal, std::vector<std::unique_ptr<CTrave>>& travi)
        : m_journal(journal), m_travi(travi) {}
    ~RecordingAnalysis() override;

    int result = 1; // of the next operations
    int linked = 1; // of the next linking, when the others succeed
    // Gives a beam results in a case: V1 of each of its records.
    void Store(int idCaso, int idTrave, const std::vector<double>& v1);
    std::vector<double> Stored(int idCaso, int idTrave) const; // empty for none

    int LeggiRisultati(int idCaso, CObArray& out, int flag) override;
    int AggiornaRiferimentiRisultati(CObArray& risultati) override;
    int CreaRisultati(int idCaso, CObArray& risultati, int flag) override;
    int RipristinaRisultati() override;

  private:
    Journal& m_journal;
    std::vector<std::unique_ptr<CTrave>>& m_travi;
    std::map<int, std::vector<std::unique_ptr<CElementoRisultati>>> m_records;
    std::map<CTrave*, CElementoRisultati*> m_own; // of the beams whose results are lent
};
