// What the dialogs see of a document's analysis: its switches, whether its results are valid, and the results by load
// case.
#pragma once

class CObArray;

class CQuovarAnalisi {
  public:
    virtual ~CQuovarAnalisi() = default;

    // Non-zero while the results in memory belong to the model as it is now.
    int m_bRisultatiValidi = 0;
    // Which analyses the next run performs; 0 or 1 each.
    int m_bAnalisiStatica = 0;
    int m_bAnalisiModale = 0;
    int m_bAnalisiSpettro = 0;
    int m_bAnalisiInstabilita = 0;

    // Reads the records of one load case into `out`, whose records then belong to the caller. 0 when there are none.
    virtual int LeggiRisultati(int idCaso, CObArray& out, int flag) = 0;
    // Makes the elements point at these records; 0 when they do not fit the model.
    virtual int AggiornaRiferimentiRisultati(CObArray& risultati) = 0;
    // Stores the records as the results of the load case; 0 when that fails.
    virtual int CreaRisultati(int idCaso, CObArray& risultati, int flag) = 0;
    // Gives the elements back their own results.
    virtual int RipristinaRisultati() = 0;
};
