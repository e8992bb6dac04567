// A document that writes down what it is told to do and holds a handful of objects, so that lists and selections work.
// It changes nothing of its model by itself: tests set its results and its contents.
#pragma once

#include "dialogs/frame/QuovarAnalisi.h"
#include "dialogs/frame/QuovarDoc.h"
#include "dialogs/frame/QuovarProgetto.h"
#include "dialogs/frame/QuovarSelection.h"
#include "dialogs/frame/QuovarUndo.h"
#include "model/ElementoRisultati.h"
#include "platform/Collections.h"
#include "tests/support/Journal.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

class CException;
class RecordingView;

class RecordingUndo : public CQuovarUndo {
  public:
    explicit RecordingUndo(Journal& journal) : m_journal(journal) {}
    void BeginUndo(unsigned int tipo, double v1, double v2, double v3, double v4, double v5, double v6, double v7,
                   double v8, double v9, double v10) override;
    void EndUndo(unsigned int tipo) override;

  private:
    Journal& m_journal;
};

// Keeps result records of beams by load case, and lends them to the beams as an analysis does.
class RecordingAnalisi : public CQuovarAnalisi {
  public:
    RecordingAnalisi(Journal& journal, std::vector<std::unique_ptr<CTrave>>& travi)
        : m_journal(journal), m_travi(travi) {}
    ~RecordingAnalisi() override;

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

class RecordingSelection : public CQuovarSelection {
  public:
    RecordingSelection(Journal& journal, CObList& selected) : m_journal(journal), m_selected(selected) {}

    void Deseleziona(CView* pView) override;
    void SelezionaStruttura(CNodo* seed, CObArray* pNodi) override;
    void TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) override;
    void RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) override;
    void RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi, int nCopie,
                        int unione) override;
    void SpecchiaSelezione(double x, double y, double z, int piano) override;
    void InizioCicloTraslaSelezione(Adv3dRect& rect, CObList& oggetti) override;
    void CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore, Adv3dRect& rect,
                              CObList& oggetti, CObList& copie) override;
    void FineCicloTraslaSelezione(Adv3dRect& rect, unsigned int contatore) override;
    void IntersezioneLineePiano(CPoligono* pPoligono) override;
    void SelezionaElementiPiano(CPoligono* pPoligono) override;
    void SelezionaElementiRange(CFPoint da, CFPoint a, int nodi, int aste, int travi, int solai, int setti) override;

  private:
    Journal& m_journal;
    CObList& m_selected;
};

class RecordingDoc : public CQuovarDoc {
  public:
    explicit RecordingDoc(Journal& journal);
    ~RecordingDoc() override;

    // Contents, set by tests.
    std::vector<std::unique_ptr<CNodo>> nodi;
    std::vector<std::unique_ptr<CTrave>> travi;
    std::vector<std::unique_ptr<CAsta>> aste;
    std::vector<std::unique_ptr<CSetto>> setti;
    std::vector<std::unique_ptr<CSolaio>> solai;
    std::vector<std::unique_ptr<CCasoCarico>> casi;
    std::vector<std::unique_ptr<CCombinazione>> combinazioni;
    std::vector<std::unique_ptr<CGruppo>> gruppi;
    std::vector<std::unique_ptr<CMateriale>> materiali;
    std::vector<std::unique_ptr<CSezione>> sezioni;
    std::vector<std::unique_ptr<CSpessore>> spessori;
    CObList selected;
    Lunghezza lunghezza{};
    // Results of what the dialogs ask for.
    int generated = 1;                  // of the generation operations
    CException* addingThrows = nullptr; // by AddCombinazione
    int unica = 1;
    RecordingView* view = nullptr;
    CCombinazione* currentCombination = nullptr;
    CCasoCarico* currentCase = nullptr;
    std::function<void(CView*, long, CObject*)> onUpdate; // reaches the open tool dialogs
    std::function<void()> onGroupGone;                    // before EliminaGruppo returns

    RecordingAnalisi analisi;
    CQuovarProgetto progetto;
    RecordingSelection selezione;
    RecordingUndo undo;

    CNodo* NewNodo(double x, double y, double z); // numbered from 1, recorded nowhere
    CTrave* NewTrave(int node1, int node2);
    CAsta* NewAsta(int node1, int node2);

    void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) override;
    Lunghezza GetLunghezza() override { return lunghezza; }

    int GetSizeNodi() override;
    CNodo* GetIndexNodo(int index) override;
    int GetSizeTravi() override;
    CTrave* GetIndexTrave(int index) override;
    int GetSizeAste() override;
    CAsta* GetIndexAsta(int index) override;
    int GetSizeSolai() override;
    CSolaio* GetIndexSolaio(int index) override;
    long GetSizeElementi() override;
    CElemento* GetIndexElemento(int index) override;
    int GetSizeCasiCarico() override;
    CCasoCarico* GetIndexCasoCarico(int index) override;
    int GetSizeCombinazioni() override;
    CCombinazione* GetIndexCombinazione(int index) override;
    int GetSizeGruppi() override;
    CGruppo* GetIndexGruppo(int index) override;
    int GetSizeMateriali() override;
    CMateriale* GetIndexMateriale(int index) override;
    int GetSizeSezioni() override;
    CSezione* GetIndexSezione(int index) override;
    int GetSizeSpessori() override;
    CSpessore* GetIndexSpessore(int index) override;

    CTrave* GetFirstTraveSelect(POSITION& pos) override;
    CTrave* GetNextTraveSelect(POSITION& pos) override;
    CAsta* GetFirstAstaSelect(POSITION& pos) override;
    CAsta* GetNextAstaSelect(POSITION& pos) override;
    CSetto* GetFirstSettoSelect(POSITION& pos) override;
    CSetto* GetNextSettoSelect(POSITION& pos) override;
    CSolaio* GetFirstSolaioSelect(POSITION& pos) override;
    CSolaio* GetNextSolaioSelect(POSITION& pos) override;
    CNodo* GetFirstNodoSelect(POSITION& pos) override;
    int GetSizeTraviSelect() override;
    int GetSizeAsteSelect() override;
    int GetSizeSettiSelect() override;
    int GetSizeSolaiSelect() override;
    int IsSelectTrave() override;
    CObList* GetListaSelezione() override;

    void SelezionaNodo(int id, CView* pView) override;
    void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) override;

    CCasoCarico* GetCasoCarico(CString nome) override;
    CCasoCarico* GetCasoCarico(int id, int* pIndex) override;
    int IsValidoCasoCaricoNome(CString nome) override;
    int SelectCasoCarico(int id) override;

    int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) override;
    int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) override;
    int GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) override;
    int GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                           int nNodi) override;
    int GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) override;
    int Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) override;
    CNodo* AddNodo(CFPoint& punto, CView* pView, int flag) override;
    CTrave* AddTrave(int idNodo1, int idNodo2, CView* pView) override;
    CAsta* AddAsta(int idNodo1, int idNodo2, CView* pView) override;
    CNodo* GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) override;

    void AssegnaBetaVista(double beta, int flag1, int flag2) override;
    void AssegnaBetaSelezione(double beta, int flag1, int flag2) override;
    int IsUnica() override { return unica; }
    Adv3d* GetVista() override;
    CQuovarView* GetViewStructure() override;
    CQuovarSelection* GetSelection() override { return &selezione; }
    int EliminaGruppo(int index) override;
    void SelezionaGruppo(int id) override;
    int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) override;
    void ModificaCombinazione(int id, CCombinazione& valori) override;
    CCombinazione* GetSelectCombinazione() override { return currentCombination; }
    CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) override;
    CElemento* IsCasoCaricoNome(CString nome) override;
    int EliminaCasoCarico(int id) override;
    CCasoCarico* GetSelectCasoCarico() override { return currentCase; }
    int SelectIndexCasoCarico(int index) override;
    int IsCasoCaricoSismicoDinamico(CString nome) override;
    CCombinazione* GetCombinazione(CString nome) override;
    CCombinazione* GetCombinazione(int id, int* pIndex) override;

  private:
    void Select(CElemento* element);

    Journal& m_journal;
};
