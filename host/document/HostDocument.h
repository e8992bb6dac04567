// The open project of the application: it owns the model, its selection and its undo recorder, and carries out the
// commands of the dialogs. Lengths and forces are in the document's units.
//
// Every change of the model goes through the recorder (HostUndo). A command outside a bracket of its own is one step.
// After each step, undo and redo the observers hear MODIFICA_STRUTTURA, after a change of the selection
// MODIFICA_SELEZIONE_FINE and the code of each kind concerned.
#pragma once

#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/host/QuovarProgetto.h"
#include "host/document/DocumentData.h"
#include "host/document/DocumentObserver.h"
#include "host/document/HostAnalysis.h"
#include "host/document/HostSelection.h"
#include "host/document/HostUndo.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace host {

// The type text of a dynamic seismic load case.
inline constexpr char dynamicSeismicCase[] = "Sismico dinamico";

class HostDocument : public CQuovarDoc {
  public:
    HostDocument(); // an empty project in metres and kilonewtons with one load case
    ~HostDocument() override;

    // ---- What the dialogs use; see CQuovarDoc.
    void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) override;
    Lunghezza GetLunghezza() override { return m_data.Units().length; }

    int GetSizeNodi() override { return m_data.Size(Kind::Node); }
    CNodo* GetIndexNodo(int index) override { return m_data.Node(index); }
    int GetSizeTravi() override { return m_data.Size(Kind::Beam); }
    CTrave* GetIndexTrave(int index) override;
    int GetSizeAste() override { return m_data.Size(Kind::Truss); }
    CAsta* GetIndexAsta(int index) override;
    int GetSizeSolai() override { return m_data.Size(Kind::Slab); }
    CSolaio* GetIndexSolaio(int index) override;
    // Beams, truss members, walls and slabs, kind after kind in document order.
    long GetSizeElementi() override;
    CElemento* GetIndexElemento(int index) override;
    int GetSizeCasiCarico() override { return m_data.Size(Kind::LoadCase); }
    CCasoCarico* GetIndexCasoCarico(int index) override;
    int GetSizeCombinazioni() override { return m_data.Size(Kind::Combination); }
    CCombinazione* GetIndexCombinazione(int index) override;
    int GetSizeGruppi() override { return m_data.Size(Kind::Group); }
    CGruppo* GetIndexGruppo(int index) override;
    int GetSizeMateriali() override { return m_data.Size(Kind::Material); }
    CMateriale* GetIndexMateriale(int index) override;
    int GetSizeSezioni() override { return m_data.Size(Kind::Section); }
    CSezione* GetIndexSezione(int index) override;
    int GetSizeSpessori() override { return m_data.Size(Kind::Thickness); }
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
    int GetSizeTraviSelect() override { return m_selection.Size(Kind::Beam); }
    int GetSizeAsteSelect() override { return m_selection.Size(Kind::Truss); }
    int GetSizeSettiSelect() override { return m_selection.Size(Kind::Wall); }
    int GetSizeSolaiSelect() override { return m_selection.Size(Kind::Slab); }
    int IsSelectTrave() override { return m_selection.Size(Kind::Beam) > 0; }
    // Rebuilt when the selection has changed since the last call; the list stays the document's.
    CObList* GetListaSelezione() override { return m_selection.List(); }

    void SelezionaNodo(int id, CView* pView) override;
    void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) override;
    void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) override;

    CCasoCarico* GetCasoCarico(CString nome) override;
    CCasoCarico* GetCasoCarico(int id, int* pIndex) override;
    int IsValidoCasoCaricoNome(CString nome) override;
    int SelectCasoCarico(int id) override;

    // Generation. All of them return 0 and change nothing for fewer than one node, more than a million, numbers that
    // are not finite, and points that coincide within the tolerance of the document where they must differ. A place
    // where a node lies already gets no second one. Each call is one undo step.
    //
    // The first node is at `inizio`. `passo` must be larger than the tolerance.
    int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) override;
    // Equally spaced, both ends included; a single node lies at the first end.
    int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) override;
    // From p1 through p2 to p3, both ends included. The points must lie in a plane parallel to `piano`.
    int GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) override;
    // Degrees. The plane is turned by `inclinazione` about its first axis through the centre; the arc runs
    // counter-clockwise seen against the plane's normal and has both ends. `inizio` must lie in the tilted plane.
    int GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                           int nNodi) override;
    // The first node lies on the plane's first axis; `inclinazione` as above.
    int GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) override;
    // Slabs with four nodes. Opposite sides are divided alike.
    int Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) override;

    // A node that lies at exactly this place (1e-9 of the model's size) is returned instead of a second one. With a
    // flag of 0 the node is made all the same.
    CNodo* AddNodo(CFPoint& punto, CView* pView, int flag) override;
    // Null for unknown or equal nodes. A second element between the same nodes is made: the check reports it.
    CTrave* AddTrave(int idNodo1, int idNodo2, CView* pView) override;
    CAsta* AddAsta(int idNodo1, int idNodo2, CView* pView) override;
    CNodo* GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) override;

    void AssegnaBetaVista(double beta, int flag1, int flag2) override;
    void AssegnaBetaSelezione(double beta, int flag1, int flag2) override;
    int IsUnica() override;
    Adv3d* GetVista() override;
    CQuovarView* GetViewStructure() override;
    CQuovarSelection* GetSelection() override { return &m_selection; }
    int EliminaGruppo(int index) override;
    void SelezionaGruppo(int id) override;
    int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) override;
    void ModificaCombinazione(int id, CCombinazione& valori) override;
    CCombinazione* GetSelectCombinazione() override;
    CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) override;
    CElemento* IsCasoCaricoNome(CString nome) override;
    int EliminaCasoCarico(int id) override;
    CCasoCarico* GetSelectCasoCarico() override;
    int SelectIndexCasoCarico(int index) override;
    int IsCasoCaricoSismicoDinamico(CString nome) override;
    CCombinazione* GetCombinazione(CString nome) override;
    CCombinazione* GetCombinazione(int id, int* pIndex) override;

    // ---- What the application around it uses.
    int GetSizeSetti() const { return m_data.Size(Kind::Wall); }
    CSetto* GetIndexSetto(int index);
    Forza GetForza() const { return m_data.Units().force; }
    // The element or entity with that number, or null.
    CElemento* Find(Kind kind, int id) { return m_data.Find(kind, id); }
    // For drawing, filing and analysis.
    DocumentData& Data() { return m_data; }
    const DocumentData& Data() const { return m_data; }
    HostSelection& Selection() { return m_selection; }
    HostUndo& Undo() { return m_undo; }

    void AddObserver(DocumentObserver* observer);
    void RemoveObserver(DocumentObserver* observer);

    // Called when there is something to do as soon as control is back in the event loop: the application then calls
    // Idle once. Selecting a hundred thousand elements one by one is then one notification, and additions outside a
    // bracket one step. Without a scheduler each call notifies, and is a step, by itself.
    void SetIdleScheduler(std::function<void()> scheduler);
    void Idle();

    // The view that GetViewStructure and GetVista answer with; null when the document has none.
    void SetActiveView(CQuovarView* view) { m_activeView = view; }

    // Takes over a whole model that was read from a file. Undo and selection start anew, the document is unmodified.
    void Replace(DocumentData data);
    // The path names the document: the title is the file's name.
    void SetPathName(LPCTSTR path) override;
    // After a successful save.
    void MarkSaved();

    // Commands of the application, one undo step each. An empty polygon, unknown or repeated nodes give null.
    CSetto* AddSetto(const std::vector<int>& idNodi);
    CSolaio* AddSolaio(const std::vector<int>& idNodi);
    // Takes the object, gives it its number and returns it; for named entities and elements built elsewhere. The
    // nodes of an element must be the document's.
    CElemento* Add(std::unique_ptr<CElemento> object, const char* stepName = "Aggiungi");
    template <class T>
    T* AddNew(std::unique_ptr<T> object, const char* stepName = "Aggiungi") {
        return static_cast<T*>(Add(std::move(object), stepName));
    }
    // A load case named "Caso n", or as told: the name must be free. Whoever fills it and hangs its loads on elements
    // says MODIFICA_CASI_CARICO afterwards; that belongs to the same step.
    CCasoCarico* CreaCasoCarico(const CString& name = CString());
    // A group of what is selected.
    CGruppo* CreateGroup(const CString& name);
    CGruppo* GetGroup(const CString& name); // null when there is none
    CElementoStrutturale* GetCurrentCase(); // load case or combination; null when there is none
    // Gives the load to the case; elements are then made to refer to it with Modify. Null for a null load.
    CCarico* AddCarico(CCasoCarico& loadCase, std::unique_ptr<CCarico> load);
    // Takes the load from its case and from every element.
    void EliminaCarico(CCasoCarico& loadCase, int loadId);
    // Changes attributes of an object of the document (not its nodes, nor a node's place) so that undo knows.
    void Modify(CElemento& object, const std::function<void()>& change);
    void MoveNodes(const std::vector<std::pair<CNodo*, CFPoint>>& places);
    // Removes objects with what hangs on them: nodes take their elements with them, load cases their loads.
    void Remove(std::vector<CElemento*> objects);
    void DeleteSelection();
    void SelectAll();
    void ChangeUnits(Lunghezza length, Forza force);

    // How near two nodes may lie before they count as one; in the document's length unit.
    double GetTolerance() const { return m_data.Tolerance(); }
    void SetTolerance(double tolerance);

    // Analyses the model. Then the results are valid, until the next change, and the elements show the current case; or
    // the outcome tells why not. Throws std::bad_alloc.
    AnalysisOutcome RunAnalysis();
    const HostAnalysis& Analysis() const { return m_analysis; }
    // Results no longer belong to the model.
    void InvalidateResults();

    // For the selection and the undo recorder: see SetIdleScheduler.
    void NotifySelection(unsigned kinds); // bits 1 << Kind
    void NotifyChange(bool model);        // a step was made, undone or redone; false when the model itself is as it was
    void ScheduleIdle();
    bool HasIdleScheduler() const { return static_cast<bool>(m_scheduler); }

  private:
    int GenerateNodes(const std::vector<CFPoint>& places);
    CNodo* MakeNode(const CFPoint& place);
    void GiveDefaults(CLineaFisica& line);
    void GiveDefaults(CPoligonoFisico& polygon);
    template <class T>
    T* AddLine(int idNodo1, int idNodo2, const char* stepName);
    template <class T>
    T* AddPolygon(const std::vector<int>& idNodi, const char* stepName);
    void SelectById(Kind kind, int id, Adv3dRect* pRect);
    void ForEachCarrier(const std::function<void(CElementoCarico&)>& action);
    void RecordBefore(CElemento& object);
    std::vector<CElemento*> WithElements(std::vector<CElemento*> objects);
    void LetGo(Kind kind, CElemento& object);
    void LetGoProperty(Kind kind, int id);
    void LeaveGroups(Kind kind, CElemento& object);
    void RemoveFromLists(const std::vector<CElemento*>& objects);
    template <class T>
    void SetValue(T& where, T value, const char* stepName);
    void RefreshModified();
    void SendPending();
    void ShowCurrentCase();
    void RememberNames();
    void RecordDirectChanges();
    void RecordNewNames();
    void RecordFilledCase();

    DocumentData m_data;
    HostSelection m_selection;
    HostUndo m_undo;
    HostAnalysis m_analysis{m_data};
    CQuovarProgetto m_design;
    CQuovarView* m_activeView = nullptr;
    std::vector<DocumentObserver*> m_observers; // null where one was removed during a notification
    int m_notifying = 0;
    std::function<void()> m_scheduler;
    bool m_idleScheduled = false;
    unsigned m_pendingKinds = 0;
    bool m_pendingStructure = false;
    bool m_pendingGroups = false;
    bool m_pendingResults = false; // valid ones went
    int m_announcedCase = 0;       // the current case that the observers know
    // By number, as they were after the last step: dialogs rename load cases and combinations by themselves.
    std::unordered_map<int, CString> m_names;
    std::vector<std::pair<int, CString>> m_groups; // in document order
    struct {
        int id = 0; // of the load case made last
        std::size_t records = 0;
    } m_newCase;
    std::size_t m_savedState = 0;
};

} // namespace host
