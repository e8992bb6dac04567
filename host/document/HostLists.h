// The document's lists and its selection, as the dialogs walk them; see DocumentLists and DocumentSelected.
#pragma once

#include "host/document/HostCore.h"

namespace host {

class HostLists : public HostCore {
  public:
    int GetSizeNodi() override { return Data().Size(Kind::Node); }
    CNodo* GetIndexNodo(int index) override { return Data().Node(index); }
    int GetSizeTravi() override { return Data().Size(Kind::Beam); }
    CTrave* GetIndexTrave(int index) override;
    int GetSizeAste() override { return Data().Size(Kind::Truss); }
    CAsta* GetIndexAsta(int index) override;
    int GetSizeSetti() const { return Data().Size(Kind::Wall); }
    CSetto* GetIndexSetto(int index);
    int GetSizeSolai() override { return Data().Size(Kind::Slab); }
    CSolaio* GetIndexSolaio(int index) override;
    long GetSizeElementi() override;
    CElemento* GetIndexElemento(int index) override;
    int GetSizeCasiCarico() override { return Data().Size(Kind::LoadCase); }
    CCasoCarico* GetIndexCasoCarico(int index) override;
    int GetSizeCombinazioni() override { return Data().Size(Kind::Combination); }
    CCombinazione* GetIndexCombinazione(int index) override;
    int GetSizeGruppi() override { return Data().Size(Kind::Group); }
    CGruppo* GetIndexGruppo(int index) override;
    int GetSizeMateriali() override { return Data().Size(Kind::Material); }
    CMateriale* GetIndexMateriale(int index) override;
    int GetSizeSezioni() override { return Data().Size(Kind::Section); }
    CSezione* GetIndexSezione(int index) override;
    int GetSizeSpessori() override { return Data().Size(Kind::Thickness); }
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
    int GetSizeTraviSelect() override { return Selection().Size(Kind::Beam); }
    int GetSizeAsteSelect() override { return Selection().Size(Kind::Truss); }
    int GetSizeSettiSelect() override { return Selection().Size(Kind::Wall); }
    int GetSizeSolaiSelect() override { return Selection().Size(Kind::Slab); }
    int IsSelectTrave() override { return Selection().Size(Kind::Beam) > 0; }
    // Rebuilt when the selection has changed since the last call; the list stays the document's.
    CObList* GetListaSelezione() override { return Selection().List(); }
    CQuovarSelection* GetSelection() override { return &Selection(); }

    void SelezionaNodo(int id, CView* pView) override;
    void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaGruppo(int id) override;
    void SelectAll();

    int IsUnica() override;

  protected:
    using HostCore::HostCore;

  private:
    void SelectById(Kind kind, int id, Adv3dRect* pRect);
};

} // namespace host
