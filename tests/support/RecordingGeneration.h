// What a recording document makes: every call is a line.
#pragma once

#include "tests/support/RecordingLists.h"

class RecordingGeneration : public RecordingLists {
  public:
    using RecordingLists::RecordingLists;

    int generated = 1; // of the next operations that may be rejected; with 0, AddNodo and its like give null

    int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) override {
        return Record("GenNodiLineare", inizio, direzione, passo, nNodi);
    }
    int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) override { return Record("GenNodi2Punti", p1, p2, nNodi); }
    int GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) override {
        return Record("GenNodiArco3Punti", piano, p1, p2, p3, nNodi);
    }
    int GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                           int nNodi) override {
        return Record("GenNodiArcoCerchio", piano, inclinazione, centro, inizio, angolo, nNodi);
    }
    int GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) override {
        return Record("GenNodiCerchio", piano, inclinazione, nNodi, centro, raggio);
    }
    int Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) override {
        return Record("Mesh4Punti", p1, p2, p3, p4, nSuddivisioni1, nSuddivisioni2);
    }

    // These three do make what they are asked for, as their callers go on with it: always a new node; an element when
    // both nodes are there.
    CNodo* AddNodo(CFPoint& punto, CView* pView, int flag) override;
    CTrave* AddTrave(int idNodo1, int idNodo2, CView* pView) override;
    CAsta* AddAsta(int idNodo1, int idNodo2, CView* pView) override;
    // The first node in document order.
    CNodo* GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) override;

    void AssegnaBetaVista(double beta, int flag1, int flag2) override {
        m_journal.Add("AssegnaBetaVista", beta, flag1, flag2);
    }
    void AssegnaBetaSelezione(double beta, int flag1, int flag2) override {
        m_journal.Add("AssegnaBetaSelezione", beta, flag1, flag2);
    }

  protected:
    // The result of an operation that may be rejected.
    template <typename... Arguments>
    int Record(const char* name, const Arguments&... arguments) {
        m_journal.Add(name, arguments...);
        return generated;
    }
};
