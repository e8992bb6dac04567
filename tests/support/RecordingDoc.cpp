#include "tests/support/RecordingDoc.h"

#include "model/Adv3dRect.h"
#include "model/Asta.h"
#include "model/CasoCarico.h"
#include "model/Combinazione.h"
#include "model/Gruppo.h"
#include "model/Materiale.h"
#include "model/Nodo.h"
#include "model/Setto.h"
#include "model/Sezione.h"
#include "model/Solaio.h"
#include "model/Spessore.h"
#include "model/Trave.h"
#include "platform/Exception.h"
#include "tests/support/RecordingHost.h"

namespace {

template <class T>
T* At(const std::vector<std::unique_ptr<T>>& list, int index) {
    return index >= 0 && index < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(index)].get() : nullptr;
}

template <class T>
T* ById(const std::vector<std::unique_ptr<T>>& list, int id, int* pIndex = nullptr) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i]->GetID() != id)
            continue;
        if (pIndex)
            *pIndex = static_cast<int>(i);
        return list[i].get();
    }
    return nullptr;
}

template <class T>
T* ByName(const std::vector<std::unique_ptr<T>>& list, const CString& name) {
    for (const auto& entity : list)
        if (entity->GetNome() == name)
            return entity.get();
    return nullptr;
}

template <class T>
int Size(const std::vector<T>& list) {
    return static_cast<int>(list.size());
}

// The next object of one class in the list from a position on, which moves past it.
template <class T>
T* Next(CObList& list, POSITION& pos) {
    while (pos)
        if (auto* found = dynamic_cast<T*>(list.GetNext(pos)))
            return found;
    return nullptr;
}

template <class T>
T* First(CObList& list, POSITION& pos) {
    pos = list.GetHeadPosition();
    return Next<T>(list, pos);
}

template <class T>
int Count(CObList& list) {
    int count = 0;
    POSITION pos = nullptr;
    for (T* found = First<T>(list, pos); found; found = Next<T>(list, pos))
        ++count;
    return count;
}

template <class T, class U>
T* MakeLine(std::vector<std::unique_ptr<T>>& list, const U& nodes, int node1, int node2) {
    auto line = std::make_unique<T>();
    line->SetID(Size(list) + 1);
    line->SetNodi(ById(nodes, node1), ById(nodes, node2));
    list.push_back(std::move(line));
    return list.back().get();
}

} // namespace

RecordingDoc::RecordingDoc(Journal& journal)
    : analisi(journal, travi), selezione(journal, selected), undo(journal), m_journal(journal) {
    m_pAnalisi = &analisi;
    m_pProgetto = &progetto;
    m_pSelezione = &selezione;
    m_pUndo = &undo;
}

RecordingDoc::~RecordingDoc() = default;

CNodo* RecordingDoc::NewNodo(double x, double y, double z) {
    auto node = std::make_unique<CNodo>();
    node->SetID(Size(nodi) + 1);
    node->SetPunto(CFPoint(x, y, z));
    nodi.push_back(std::move(node));
    return nodi.back().get();
}

CTrave* RecordingDoc::NewTrave(int node1, int node2) {
    return MakeLine(travi, nodi, node1, node2);
}

CAsta* RecordingDoc::NewAsta(int node1, int node2) {
    return MakeLine(aste, nodi, node1, node2);
}

void RecordingDoc::UpdateAllViews(CView* pSender, long lHint, CObject* pHint) {
    m_journal.Add("UpdateAllViews", pSender, lHint, pHint);
    if (onUpdate)
        onUpdate(pSender, lHint, pHint);
}

int RecordingDoc::GetSizeNodi() {
    return Size(nodi);
}
CNodo* RecordingDoc::GetIndexNodo(int index) {
    return At(nodi, index);
}
int RecordingDoc::GetSizeTravi() {
    return Size(travi);
}
CTrave* RecordingDoc::GetIndexTrave(int index) {
    return At(travi, index);
}
int RecordingDoc::GetSizeAste() {
    return Size(aste);
}
CAsta* RecordingDoc::GetIndexAsta(int index) {
    return At(aste, index);
}
int RecordingDoc::GetSizeSolai() {
    return Size(solai);
}
CSolaio* RecordingDoc::GetIndexSolaio(int index) {
    return At(solai, index);
}
int RecordingDoc::GetSizeCasiCarico() {
    return Size(casi);
}
CCasoCarico* RecordingDoc::GetIndexCasoCarico(int index) {
    return At(casi, index);
}
int RecordingDoc::GetSizeCombinazioni() {
    return Size(combinazioni);
}
CCombinazione* RecordingDoc::GetIndexCombinazione(int index) {
    return At(combinazioni, index);
}
int RecordingDoc::GetSizeGruppi() {
    return Size(gruppi);
}
CGruppo* RecordingDoc::GetIndexGruppo(int index) {
    return At(gruppi, index);
}
int RecordingDoc::GetSizeMateriali() {
    return Size(materiali);
}
CMateriale* RecordingDoc::GetIndexMateriale(int index) {
    return At(materiali, index);
}
int RecordingDoc::GetSizeSezioni() {
    return Size(sezioni);
}
CSezione* RecordingDoc::GetIndexSezione(int index) {
    return At(sezioni, index);
}
int RecordingDoc::GetSizeSpessori() {
    return Size(spessori);
}
CSpessore* RecordingDoc::GetIndexSpessore(int index) {
    return At(spessori, index);
}

long RecordingDoc::GetSizeElementi() {
    return Size(travi) + Size(aste) + Size(setti) + Size(solai);
}

CElemento* RecordingDoc::GetIndexElemento(int index) {
    if (index < Size(travi))
        return At(travi, index);
    index -= Size(travi);
    if (index < Size(aste))
        return At(aste, index);
    index -= Size(aste);
    if (index < Size(setti))
        return At(setti, index);
    return At(solai, index - Size(setti));
}

CTrave* RecordingDoc::GetFirstTraveSelect(POSITION& pos) {
    return First<CTrave>(selected, pos);
}
CTrave* RecordingDoc::GetNextTraveSelect(POSITION& pos) {
    return Next<CTrave>(selected, pos);
}
CAsta* RecordingDoc::GetFirstAstaSelect(POSITION& pos) {
    return First<CAsta>(selected, pos);
}
CAsta* RecordingDoc::GetNextAstaSelect(POSITION& pos) {
    return Next<CAsta>(selected, pos);
}
CSetto* RecordingDoc::GetFirstSettoSelect(POSITION& pos) {
    return First<CSetto>(selected, pos);
}
CSetto* RecordingDoc::GetNextSettoSelect(POSITION& pos) {
    return Next<CSetto>(selected, pos);
}
CSolaio* RecordingDoc::GetFirstSolaioSelect(POSITION& pos) {
    return First<CSolaio>(selected, pos);
}
CSolaio* RecordingDoc::GetNextSolaioSelect(POSITION& pos) {
    return Next<CSolaio>(selected, pos);
}
CNodo* RecordingDoc::GetFirstNodoSelect(POSITION& pos) {
    return First<CNodo>(selected, pos);
}
int RecordingDoc::GetSizeTraviSelect() {
    return Count<CTrave>(selected);
}
int RecordingDoc::GetSizeAsteSelect() {
    return Count<CAsta>(selected);
}
int RecordingDoc::GetSizeSettiSelect() {
    return Count<CSetto>(selected);
}
int RecordingDoc::GetSizeSolaiSelect() {
    return Count<CSolaio>(selected);
}
int RecordingDoc::IsSelectTrave() {
    return GetSizeTraviSelect() > 0;
}
CObList* RecordingDoc::GetListaSelezione() {
    return &selected;
}

void RecordingDoc::Select(CElemento* element) {
    if (!element || selected.Find(element))
        return;
    element->SetSelect(1);
    selected.AddTail(element);
}

void RecordingDoc::SelezionaNodo(int id, CView* pView) {
    m_journal.Add("SelezionaNodo", id, pView);
    Select(ById(nodi, id));
}
void RecordingDoc::SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaTrave", id, pView, pRect);
    Select(ById(travi, id));
}
void RecordingDoc::SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaAsta", id, pView, pRect);
    Select(ById(aste, id));
}
void RecordingDoc::SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaSetto", id, pView, pRect);
    Select(ById(setti, id));
}
void RecordingDoc::SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaSolaio", id, pView, pRect);
    Select(ById(solai, id));
}

CCasoCarico* RecordingDoc::GetCasoCarico(CString nome) {
    return ByName(casi, nome);
}
CCasoCarico* RecordingDoc::GetCasoCarico(int id, int* pIndex) {
    return ById(casi, id, pIndex);
}
int RecordingDoc::IsValidoCasoCaricoNome(CString nome) {
    return nome.GetLength() <= 64 && nome.Left(1) != " " && nome.FindOneOf(".`![]") < 0;
}
int RecordingDoc::SelectCasoCarico(int id) {
    m_journal.Add("SelectCasoCarico", id);
    currentCase = ById(casi, id);
    currentCombination = currentCase ? nullptr : ById(combinazioni, id);
    return currentCase || currentCombination;
}

int RecordingDoc::GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) {
    m_journal.Add("GenNodiLineare", inizio, direzione, passo, nNodi);
    return generated;
}
int RecordingDoc::GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) {
    m_journal.Add("GenNodi2Punti", p1, p2, nNodi);
    return generated;
}
int RecordingDoc::GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) {
    m_journal.Add("GenNodiArco3Punti", piano, p1, p2, p3, nNodi);
    return generated;
}
int RecordingDoc::GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                                     int nNodi) {
    m_journal.Add("GenNodiArcoCerchio", piano, inclinazione, centro, inizio, angolo, nNodi);
    return generated;
}
int RecordingDoc::GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) {
    m_journal.Add("GenNodiCerchio", piano, inclinazione, nNodi, centro, raggio);
    return generated;
}
int RecordingDoc::Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) {
    m_journal.Add("Mesh4Punti", p1, p2, p3, p4, nSuddivisioni1, nSuddivisioni2);
    return generated;
}
CNodo* RecordingDoc::AddNodo(CFPoint& punto, CView* pView, int flag) {
    m_journal.Add("AddNodo", punto, pView, flag);
    return generated ? NewNodo(punto.x, punto.y, punto.z) : nullptr;
}
CTrave* RecordingDoc::AddTrave(int idNodo1, int idNodo2, CView* pView) {
    m_journal.Add("AddTrave", idNodo1, idNodo2, pView);
    return generated ? NewTrave(idNodo1, idNodo2) : nullptr;
}
CAsta* RecordingDoc::AddAsta(int idNodo1, int idNodo2, CView* pView) {
    m_journal.Add("AddAsta", idNodo1, idNodo2, pView);
    return generated ? NewAsta(idNodo1, idNodo2) : nullptr;
}
CNodo* RecordingDoc::GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) {
    for (const auto& node : nodi)
        if (node.get() != pEscluso && CFPoint::GetMod(*node->GetPunto(), punto) <= tolleranza)
            return node.get();
    return nullptr;
}

void RecordingDoc::AssegnaBetaVista(double beta, int flag1, int flag2) {
    m_journal.Add("AssegnaBetaVista", beta, flag1, flag2);
}
void RecordingDoc::AssegnaBetaSelezione(double beta, int flag1, int flag2) {
    m_journal.Add("AssegnaBetaSelezione", beta, flag1, flag2);
}
Adv3d* RecordingDoc::GetVista() {
    return view ? view->GetVista() : nullptr;
}
CQuovarView* RecordingDoc::GetViewStructure() {
    return view;
}
int RecordingDoc::EliminaGruppo(int index) {
    m_journal.Add("EliminaGruppo", index);
    if (!At(gruppi, index))
        return 0;
    gruppi.erase(gruppi.begin() + index);
    if (onGroupGone)
        onGroupGone();
    return 1;
}
void RecordingDoc::SelezionaGruppo(int id) {
    m_journal.Add("SelezionaGruppo", id);
}
int RecordingDoc::AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) {
    m_journal.Add("AddCombinazione", pCombinazione->GetNome());
    if (addingThrows)
        throw std::exchange(addingThrows, nullptr);
    if (!generated)
        return 0;
    pCombinazione->SetID(100 + Size(combinazioni));
    combinazioni.emplace_back(pCombinazione);
    if (pOut)
        *pOut = pCombinazione;
    return 1;
}
void RecordingDoc::ModificaCombinazione(int id, CCombinazione& valori) {
    m_journal.Add("ModificaCombinazione", id, valori.GetNome());
    if (CCombinazione* combination = ById(combinazioni, id)) {
        *combination = valori;
        combination->SetID(id);
    }
}
CElemento* RecordingDoc::IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) {
    CElementoStrutturale* other = nullptr;
    for (const auto& entity : casi)
        if (entity.get() != &entita && entity->GetNome() == entita.GetNome())
            other = entity.get();
    for (const auto& entity : combinazioni)
        if (entity.get() != &entita && entity->GetNome() == entita.GetNome())
            other = entity.get();
    if (pOther)
        *pOther = other;
    return other;
}
CElemento* RecordingDoc::IsCasoCaricoNome(CString nome) {
    if (CElemento* found = ByName(casi, nome))
        return found;
    return ByName(combinazioni, nome);
}
int RecordingDoc::EliminaCasoCarico(int id) {
    m_journal.Add("EliminaCasoCarico", id);
    return static_cast<int>(std::erase_if(casi, [id](const auto& entity) { return entity->GetID() == id; }));
}
int RecordingDoc::SelectIndexCasoCarico(int index) {
    m_journal.Add("SelectIndexCasoCarico", index);
    currentCase = At(casi, index);
    return currentCase != nullptr;
}
int RecordingDoc::IsCasoCaricoSismicoDinamico(CString nome) {
    CCasoCarico* found = ByName(casi, nome);
    return found && found->GetTipo() == "Sismico dinamico";
}
CCombinazione* RecordingDoc::GetCombinazione(CString nome) {
    return ByName(combinazioni, nome);
}
CCombinazione* RecordingDoc::GetCombinazione(int id, int* pIndex) {
    return ById(combinazioni, id, pIndex);
}
