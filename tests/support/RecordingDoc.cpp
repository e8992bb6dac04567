#include "tests/support/RecordingDoc.h"

#include "model/view/Adv3dRect.h"
#include "platform/core/Exception.h"
#include "tests/support/RecordingHost.h"

RecordingDoc::RecordingDoc(Journal& journal)
    : analisi(journal, travi), selezione(journal, selected), undo(journal), m_journal(journal) {
    m_pAnalisi = &analisi;
    m_pProgetto = &progetto;
    m_pSelezione = &selezione;
    m_pUndo = &undo;
}

RecordingDoc::~RecordingDoc() = default;

CNodo* RecordingDoc::NewNodo(double x, double y, double z) {
    nodi.push_back(std::make_unique<CNodo>());
    nodi.back()->SetID(Size(nodi));
    nodi.back()->SetPoint(CFPoint(x, y, z));
    return nodi.back().get();
}

void RecordingDoc::UpdateAllViews(CView* pSender, long lHint, CObject* pHint) {
    m_journal.Add("UpdateAllViews", pSender, lHint, pHint);
    if (onUpdate)
        onUpdate(pSender, lHint, pHint);
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

int RecordingDoc::IsValidoCasoCaricoNome(CString nome) {
    return nome.GetLength() <= 64 && nome.Left(1) != " " && nome.FindOneOf(".`![]") < 0;
}
int RecordingDoc::SelectCasoCarico(int id) {
    m_journal.Add("SelectCasoCarico", id);
    currentCase = ById(casi, id);
    currentCombination = currentCase ? nullptr : ById(combinazioni, id);
    return currentCase || currentCombination;
}
Adv3d* RecordingDoc::GetVista() {
    return view ? view->GetVista() : nullptr;
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
