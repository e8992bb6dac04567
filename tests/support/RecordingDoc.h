// A document that writes down what it is told to do and holds a handful of objects, so that lists and selections work.
// It changes nothing of its model by itself: tests set its results and its contents.
#pragma once

#include "dialogs/frame/host/QuovarAnalisi.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarProgetto.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "dialogs/frame/host/QuovarUndo.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/result/ElementoRisultati.h"
#include "platform/core/Collections.h"
#include "tests/support/Journal.h"

#include <algorithm>
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
                   double v8, double v9, double v10) override {
        m_journal.Add("BeginUndo", tipo, v1, v2, v3, v4, v5, v6, v7, v8, v9, v10);
    }
    void EndUndo(unsigned int tipo) override { m_journal.Add("EndUndo", tipo); }

  private:
    Journal& m_journal;
};

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

class RecordingSelection : public CQuovarSelection {
  public:
    RecordingSelection(Journal& journal, CObList& selected) : m_journal(journal), m_selected(selected) {}

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
    // No dialog of the module asks for these yet.
    void IntersezioneLineePiano(CPoligono*) override {}
    void SelezionaElementiPiano(CPoligono*) override {}
    void SelezionaElementiRange(CFPoint, CFPoint, int, int, int, int, int) override {}

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
    CObList selected;
    // Results of what the dialogs ask for.
    int generated = 1;                  // of the generation operations
    CException* addingThrows = nullptr; // by AddCombinazione
    int unica = 1;
    RecordingView* view = nullptr;
    CCombinazione* currentCombination = nullptr;
    CCasoCarico* currentCase = nullptr;
    std::function<void(CView*, long, CObject*)> onUpdate; // reaches the open tool dialogs
    std::function<void()> onGroupGone;                    // before EliminaGruppo returns

    RecordingAnalysis analisi;
    CQuovarProgetto progetto;
    RecordingSelection selezione;
    RecordingUndo undo;

    CNodo* NewNodo(double x, double y, double z); // numbered from 1, recorded nowhere
    CTrave* NewTrave(int node1, int node2) { return MakeLine(travi, node1, node2); }
    CAsta* NewAsta(int node1, int node2) { return MakeLine(aste, node1, node2); }

    void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) override;
    Lunghezza GetLunghezza() override { return {}; }

    int GetSizeNodi() override { return Size(nodi); }
    CNodo* GetIndexNodo(int index) override { return At(nodi, index); }
    int GetSizeTravi() override { return Size(travi); }
    CTrave* GetIndexTrave(int index) override { return At(travi, index); }
    int GetSizeAste() override { return Size(aste); }
    CAsta* GetIndexAsta(int index) override { return At(aste, index); }
    int GetSizeSolai() override { return Size(solai); }
    CSolaio* GetIndexSolaio(int index) override { return At(solai, index); }
    long GetSizeElementi() override { return Size(travi) + Size(aste) + Size(setti) + Size(solai); }
    CElemento* GetIndexElemento(int index) override;
    int GetSizeCasiCarico() override { return Size(casi); }
    CCasoCarico* GetIndexCasoCarico(int index) override { return At(casi, index); }
    int GetSizeCombinazioni() override { return Size(combinazioni); }
    CCombinazione* GetIndexCombinazione(int index) override { return At(combinazioni, index); }
    int GetSizeGruppi() override { return Size(gruppi); }
    CGruppo* GetIndexGruppo(int index) override { return At(gruppi, index); }

    CTrave* GetFirstTraveSelect(POSITION& pos) override { return First<CTrave>(pos); }
    CNodo* GetFirstNodoSelect(POSITION& pos) override { return First<CNodo>(pos); }
    CObList* GetListaSelezione() override { return &selected; }

    void SelezionaNodo(int id, CView* pView) override;
    void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) override;

    CCasoCarico* GetCasoCarico(CString nome) override { return ByName(casi, nome); }
    CCasoCarico* GetCasoCarico(int id, int* pIndex) override { return ById(casi, id, pIndex); }
    int IsValidoCasoCaricoNome(CString nome) override;
    int SelectCasoCarico(int id) override;

    int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) override {
        return Record("GenNodiLineare", inizio, direzione, passo, nNodi);
    }
    int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) override { return Record("GenNodi2Punti", p1, p2, nNodi); }
    int IsUnica() override { return unica; }
    Adv3d* GetVista() override;
    CQuovarSelection* GetSelection() override { return &selezione; }
    int EliminaGruppo(int index) override;
    void SelezionaGruppo(int id) override { Record("SelezionaGruppo", id); }
    int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) override;
    void ModificaCombinazione(int id, CCombinazione& valori) override;
    CCombinazione* GetSelectCombinazione() override { return currentCombination; }
    CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) override;
    CElemento* IsCasoCaricoNome(CString nome) override;
    int EliminaCasoCarico(int id) override;
    CCasoCarico* GetSelectCasoCarico() override { return currentCase; }
    int SelectIndexCasoCarico(int index) override;
    int IsCasoCaricoSismicoDinamico(CString nome) override;
    CCombinazione* GetCombinazione(CString nome) override { return ByName(combinazioni, nome); }
    CCombinazione* GetCombinazione(int id, int* pIndex) override { return ById(combinazioni, id, pIndex); }

    // No dialog of the module asks for these yet.
    int GetSizeMateriali() override { return 0; }
    CMateriale* GetIndexMateriale(int) override { return nullptr; }
    int GetSizeSezioni() override { return 0; }
    CSezione* GetIndexSezione(int) override { return nullptr; }
    int GetSizeSpessori() override { return 0; }
    CSpessore* GetIndexSpessore(int) override { return nullptr; }
    CTrave* GetNextTraveSelect(POSITION&) override { return nullptr; }
    CAsta* GetFirstAstaSelect(POSITION&) override { return nullptr; }
    CAsta* GetNextAstaSelect(POSITION&) override { return nullptr; }
    CSetto* GetFirstSettoSelect(POSITION&) override { return nullptr; }
    CSetto* GetNextSettoSelect(POSITION&) override { return nullptr; }
    CSolaio* GetFirstSolaioSelect(POSITION&) override { return nullptr; }
    CSolaio* GetNextSolaioSelect(POSITION&) override { return nullptr; }
    int GetSizeTraviSelect() override { return 0; }
    int GetSizeAsteSelect() override { return 0; }
    int GetSizeSettiSelect() override { return 0; }
    int GetSizeSolaiSelect() override { return 0; }
    int IsSelectTrave() override { return 0; }
    int GenNodiArco3Punti(int, CFPoint, CFPoint, CFPoint, int) override { return 0; }
    int GenNodiArcoCerchio(int, double, CFPoint, CFPoint, double, int) override { return 0; }
    int GenNodiCerchio(int, double, int, CFPoint, double) override { return 0; }
    int Mesh4Punti(CFPoint, CFPoint, CFPoint, CFPoint, int, int) override { return 0; }
    CNodo* AddNodo(CFPoint&, CView*, int) override { return nullptr; }
    CTrave* AddTrave(int, int, CView*) override { return nullptr; }
    CAsta* AddAsta(int, int, CView*) override { return nullptr; }
    CNodo* GetNodo(CFPoint&, CNodo*, double) override { return nullptr; }
    void AssegnaBetaVista(double, int, int) override {}
    void AssegnaBetaSelezione(double, int, int) override {}
    CQuovarView* GetViewStructure() override { return nullptr; }

  private:
    template <class T>
    using List = std::vector<std::unique_ptr<T>>;

    template <class T>
    static int Size(const List<T>& list) {
        return static_cast<int>(list.size());
    }
    template <class T>
    static T* At(const List<T>& list, int index) {
        return index >= 0 && index < Size(list) ? list[static_cast<std::size_t>(index)].get() : nullptr;
    }
    template <class T>
    static T* ById(const List<T>& list, int id, int* pIndex = nullptr) {
        const auto found =
            std::find_if(list.begin(), list.end(), [id](const auto& each) { return each->GetID() == id; });
        if (found != list.end() && pIndex)
            *pIndex = static_cast<int>(found - list.begin());
        return found == list.end() ? nullptr : found->get();
    }
    template <class T>
    static T* ByName(const List<T>& list, const CString& name) {
        for (const auto& entity : list)
            if (entity->GetNome() == name)
                return entity.get();
        return nullptr;
    }
    // The first selected object of one class; the position is behind it.
    template <class T>
    T* First(POSITION& pos) {
        for (pos = selected.GetHeadPosition(); pos;)
            if (auto* found = dynamic_cast<T*>(selected.GetNext(pos)))
                return found;
        return nullptr;
    }
    template <class T>
    T* MakeLine(List<T>& list, int node1, int node2) {
        list.push_back(std::make_unique<T>());
        list.back()->SetID(Size(list));
        list.back()->SetNodi(ById(nodi, node1), ById(nodi, node2));
        return list.back().get();
    }
    // The result of an operation that may be rejected.
    template <typename... Arguments>
    int Record(const char* name, const Arguments&... arguments) {
        m_journal.Add(name, arguments...);
        return generated;
    }
    void Select(CElemento* element);

    Journal& m_journal;
};
