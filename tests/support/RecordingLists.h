// The contents of a recording document, its lists and what is selected of them.
#pragma once

#include "dialogs/frame/host/QuovarDoc.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"
#include "platform/core/Collections.h"
#include "tests/support/Journal.h"

#include <algorithm>
#include <memory>
#include <vector>

// Selecting by identifier is recorded and selects; the other queries are answered from the contents and not recorded.
class RecordingLists : public CQuovarDoc {
  public:
    explicit RecordingLists(Journal& journal) : m_journal(journal) {}

    // Contents, set by tests. A null is handed out as it is.
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

    // Numbered from 1, recorded nowhere.
    CNodo* NewNodo(double x, double y, double z);
    CTrave* NewTrave(int node1, int node2) { return MakeLine(travi, node1, node2); }
    CAsta* NewAsta(int node1, int node2) { return MakeLine(aste, node1, node2); }

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
    int GetSizeMateriali() override { return Size(materiali); }
    CMateriale* GetIndexMateriale(int index) override { return At(materiali, index); }
    int GetSizeSezioni() override { return Size(sezioni); }
    CSezione* GetIndexSezione(int index) override { return At(sezioni, index); }
    int GetSizeSpessori() override { return Size(spessori); }
    CSpessore* GetIndexSpessore(int index) override { return At(spessori, index); }

    CTrave* GetFirstTraveSelect(POSITION& pos) override { return First<CTrave>(pos); }
    CTrave* GetNextTraveSelect(POSITION& pos) override { return Next<CTrave>(pos); }
    CAsta* GetFirstAstaSelect(POSITION& pos) override { return First<CAsta>(pos); }
    CAsta* GetNextAstaSelect(POSITION& pos) override { return Next<CAsta>(pos); }
    CSetto* GetFirstSettoSelect(POSITION& pos) override { return First<CSetto>(pos); }
    CSetto* GetNextSettoSelect(POSITION& pos) override { return Next<CSetto>(pos); }
    CSolaio* GetFirstSolaioSelect(POSITION& pos) override { return First<CSolaio>(pos); }
    CSolaio* GetNextSolaioSelect(POSITION& pos) override { return Next<CSolaio>(pos); }
    CNodo* GetFirstNodoSelect(POSITION& pos) override { return First<CNodo>(pos); }
    int GetSizeTraviSelect() override { return Count<CTrave>(); }
    int GetSizeAsteSelect() override { return Count<CAsta>(); }
    int GetSizeSettiSelect() override { return Count<CSetto>(); }
    int GetSizeSolaiSelect() override { return Count<CSolaio>(); }
    int IsSelectTrave() override { return Count<CTrave>() > 0; }
    CObList* GetListaSelezione() override { return &selected; }

    void SelezionaNodo(int id, CView* pView) override;
    void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) override;

  protected:
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
            std::find_if(list.begin(), list.end(), [id](const auto& each) { return each && each->GetID() == id; });
        if (found != list.end() && pIndex)
            *pIndex = static_cast<int>(found - list.begin());
        return found == list.end() ? nullptr : found->get();
    }
    template <class T>
    T* MakeLine(List<T>& list, int node1, int node2) {
        list.push_back(std::make_unique<T>());
        list.back()->SetID(Size(list));
        list.back()->SetNodi(ById(nodi, node1), ById(nodi, node2));
        return list.back().get();
    }

    Journal& m_journal;

  private:
    // The next selected object of one class; the position is behind it.
    template <class T>
    T* Next(POSITION& pos) {
        while (pos)
            if (auto* found = dynamic_cast<T*>(selected.GetNext(pos)))
                return found;
        return nullptr;
    }
    template <class T>
    T* First(POSITION& pos) {
        pos = selected.GetHeadPosition();
        return Next<T>(pos);
    }
    template <class T>
    int Count() {
        int count = 0;
        POSITION pos;
        for (T* each = First<T>(pos); each; each = Next<T>(pos))
            ++count;
        return count;
    }
    void Select(CElemento* element);
};
