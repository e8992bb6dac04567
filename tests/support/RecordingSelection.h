// The selection and the undo recorder of a recording document: they change nothing of the model.
#pragma once

#include "dialogs/frame/host/QuovarSelection.h"
#include "dialogs/frame/host/QuovarUndo.h"
#include "platform/core/Collections.h"
#include "tests/support/Journal.h"

class CException;

class RecordingUndo : public CQuovarUndo {
  public:
    explicit RecordingUndo(Journal& journal) : m_journal(journal) {}
    void BeginUndo(unsigned int tipo, double v1, double v2, double v3, double v4, double v5, double v6, double v7,
                   double v8, double v9, double v10) override {
        m_journal.Add("BeginUndo", tipo, v1, v2, v3, v4, v5, v6, v7, v8, v9, v10);
    }
    void EndUndo(unsigned int tipo) override { m_journal.Add("EndUndo", tipo); }

  private:
    Journal& m_journal;
};

class RecordingSelection : public CQuovarSelection {
  public:
    RecordingSelection(Journal& journal, CObList& selected) : m_journal(journal), m_selected(selected) {}

    CException* planeThrows = nullptr; // by the next operation with a polygon; it is the catcher's

    void Deseleziona(CView* pView) override;
    void SelezionaStruttura(CNodo* seed, CObArray* pNodi) override;
    void TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) override {
        m_journal.Add("TraslaSelezione", dx, dy, dz, nCopie, unione);
    }
    void RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) override {
        m_journal.Add("RuotaSelezione", seno, coseno, asse, nCopie, unione);
    }
    void RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi, int nCopie,
                        int unione) override {
        m_journal.Add("RuotaSelezione", x1, y1, z1, x2, y2, z2, gradi, nCopie, unione);
    }
    void SpecchiaSelezione(double x, double y, double z, int piano) override {
        m_journal.Add("SpecchiaSelezione", x, y, z, piano);
    }
    void InizioCicloTraslaSelezione(Adv3dRect& rect, CObList& oggetti) override;
    void CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore, Adv3dRect& rect,
                              CObList& oggetti, CObList& copie) override;
    void FineCicloTraslaSelezione(Adv3dRect&, unsigned int contatore) override {
        m_journal.Add("FineCicloTraslaSelezione", contatore);
    }
    // The polygon is written down as the points of its vertices.
    void IntersezioneLineePiano(CPoligono* pPoligono) override { RecordPlane("IntersezioneLineePiano", pPoligono); }
    void SelezionaElementiPiano(CPoligono* pPoligono) override { RecordPlane("SelezionaElementiPiano", pPoligono); }
    void SelezionaElementiRange(CFPoint da, CFPoint a, int nodi, int aste, int travi, int solai, int setti) override {
        m_journal.Add("SelezionaElementiRange", da, a, nodi, aste, travi, solai, setti);
    }

  private:
    void RecordPlane(const char* name, CPoligono* polygon);

    Journal& m_journal;
    CObList& m_selected;
};
