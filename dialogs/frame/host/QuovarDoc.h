// The open project, as the dialogs use it. The host implements it and owns everything that it hands out: a dialog
// keeps such pointers no longer than the document keeps the objects, and never deletes them.
// Indexes are 0-based in document order; identifiers are the numbers shown to the user; points and lengths are in the
// document's length unit; a null result means "none".
#pragma once

#include "model/values/FPoint.h"
#include "model/values/Units.h"
#include "platform/window/View.h"

class Adv3d;
class Adv3dRect;
class CAsta;
class CCasoCarico;
class CCombinazione;
class CElemento;
class CElementoStrutturale;
class CGruppo;
class CMateriale;
class CNodo;
class CObList;
class CQuovarAnalisi;
class CQuovarProgetto;
class CQuovarSelection;
class CQuovarUndo;
class CQuovarView;
class CSetto;
class CSezione;
class CSolaio;
class CSpessore;
class CTrave;

class CQuovarDoc : public CDocument {
  public:
    CQuovarAnalisi* m_pAnalisi = nullptr;
    CQuovarProgetto* m_pProgetto = nullptr;
    CQuovarSelection* m_pSelezione = nullptr;
    CQuovarUndo* m_pUndo = nullptr;

    // Tells every view and open tool dialog before it returns, so the caller must be in a consistent state.
    // lHint is a ModificaDocumento code, with an additional value; pHint is null or an Adv3dRect*.
    virtual void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) = 0;
    virtual Lunghezza GetLunghezza() = 0;

    virtual int GetSizeNodi() = 0;
    virtual CNodo* GetIndexNodo(int index) = 0;
    virtual int GetSizeTravi() = 0;
    virtual CTrave* GetIndexTrave(int index) = 0;
    virtual int GetSizeAste() = 0;
    virtual CAsta* GetIndexAsta(int index) = 0;
    virtual int GetSizeSolai() = 0;
    virtual CSolaio* GetIndexSolaio(int index) = 0;
    virtual long GetSizeElementi() = 0;
    virtual CElemento* GetIndexElemento(int index) = 0;
    virtual int GetSizeCasiCarico() = 0;
    virtual CCasoCarico* GetIndexCasoCarico(int index) = 0;
    virtual int GetSizeCombinazioni() = 0;
    virtual CCombinazione* GetIndexCombinazione(int index) = 0;
    virtual int GetSizeGruppi() = 0;
    virtual CGruppo* GetIndexGruppo(int index) = 0;
    virtual int GetSizeMateriali() = 0;
    virtual CMateriale* GetIndexMateriale(int index) = 0;
    virtual int GetSizeSezioni() = 0;
    virtual CSezione* GetIndexSezione(int index) = 0;
    virtual int GetSizeSpessori() = 0;
    virtual CSpessore* GetIndexSpessore(int index) = 0;

    // Walks over the selected elements. The position belongs to one walk; the selection must not change during it.
    virtual CTrave* GetFirstTraveSelect(POSITION& pos) = 0;
    virtual CTrave* GetNextTraveSelect(POSITION& pos) = 0;
    virtual CAsta* GetFirstAstaSelect(POSITION& pos) = 0;
    virtual CAsta* GetNextAstaSelect(POSITION& pos) = 0;
    virtual CSetto* GetFirstSettoSelect(POSITION& pos) = 0;
    virtual CSetto* GetNextSettoSelect(POSITION& pos) = 0;
    virtual CSolaio* GetFirstSolaioSelect(POSITION& pos) = 0;
    virtual CSolaio* GetNextSolaioSelect(POSITION& pos) = 0;
    virtual CNodo* GetFirstNodoSelect(POSITION& pos) = 0;
    virtual int GetSizeTraviSelect() = 0;
    virtual int GetSizeAsteSelect() = 0;
    virtual int GetSizeSettiSelect() = 0;
    virtual int GetSizeSolaiSelect() = 0;
    virtual int IsSelectTrave() = 0;
    virtual CObList* GetListaSelezione() = 0;

    // Add the element with that identifier to the selection. They set, never toggle: a caller may name one element
    // several times. pRect is null or gathers the screen region to redraw.
    virtual void SelezionaNodo(int id, CView* pView) = 0;
    virtual void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) = 0;
    virtual void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) = 0;
    virtual void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) = 0;
    virtual void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) = 0;

    virtual CCasoCarico* GetCasoCarico(CString nome) = 0;
    // pIndex, unless null, receives the index of the case found.
    virtual CCasoCarico* GetCasoCarico(int id, int* pIndex) = 0;
    // Non-zero when the text may be the name of a load case: no leading space, at most 64 characters, none of . ` ! [ ]
    virtual int IsValidoCasoCaricoNome(CString nome) = 0;
    // Makes the load case or combination with that identifier the current one; 0 when there is none.
    virtual int SelectCasoCarico(int id) = 0;

    // Generation. 0 means that the host rejects the parameters (no nodes, coincident points ...).
    // Nodes from `inizio` towards `direzione`, `passo` apart.
    virtual int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) = 0;
    virtual int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) = 0;
    // `piano` is 1 for the X-Y plane, 2 for X-Z, 3 for Y-Z; angles are as the user typed them.
    virtual int GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) = 0;
    virtual int GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                                   int nNodi) = 0;
    virtual int GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) = 0;
    virtual int Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) = 0;
    virtual CNodo* AddNodo(CFPoint& punto, CView* pView, int flag) = 0;
    virtual CTrave* AddTrave(int idNodo1, int idNodo2, CView* pView) = 0;
    virtual CAsta* AddAsta(int idNodo1, int idNodo2, CView* pView) = 0;
    // The node within `tolleranza` of the point, other than pEscluso (null excludes nothing).
    virtual CNodo* GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) = 0;

    // Assign a rotation angle to the beams shown, or to the selected ones; undo and redraw are the host's.
    virtual void AssegnaBetaVista(double beta, int flag1, int flag2) = 0;
    virtual void AssegnaBetaSelezione(double beta, int flag1, int flag2) = 0;
    // Non-zero when the model is one connected structure.
    virtual int IsUnica() = 0;
    virtual Adv3d* GetVista() = 0;
    virtual CQuovarView* GetViewStructure() = 0;
    virtual CQuovarSelection* GetSelection() = 0;
    virtual int EliminaGruppo(int index) = 0;
    virtual void SelezionaGruppo(int id) = 0;
    // Non-zero when the document has taken the combination, which then belongs to it; pOut is null or receives it.
    virtual int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) = 0;
    // Gives the combination with that identifier the contents of the argument.
    virtual void ModificaCombinazione(int id, CCombinazione& valori) = 0;
    virtual CCombinazione* GetSelectCombinazione() = 0;
    // Another load case or combination that bears the entity's name; pOther is null or receives it.
    virtual CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) = 0;
    virtual CElemento* IsCasoCaricoNome(CString nome) = 0;
    virtual int EliminaCasoCarico(int id) = 0;
    virtual CCasoCarico* GetSelectCasoCarico() = 0;
    virtual int SelectIndexCasoCarico(int index) = 0;
    virtual int IsCasoCaricoSismicoDinamico(CString nome) = 0;
    virtual CCombinazione* GetCombinazione(CString nome) = 0;
    virtual CCombinazione* GetCombinazione(int id, int* pIndex) = 0;
};
