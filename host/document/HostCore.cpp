#include "host/document/HostCore.h"

#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/document/StepSummary.h"
#include "model/values/Path.h"

namespace host {

HostCore::HostCore(HostSelection& selection) : m_selection(selection) {
    m_pAnalisi = &m_analysis;
    m_pProgetto = &m_design;
    m_pUndo = &m_undo;
    m_undo.Watch(m_data.Info());
    for (int* analysis : {&m_analysis.m_bAnalisiStatica, &m_analysis.m_bAnalisiModale, &m_analysis.m_bAnalisiSpettro,
                          &m_analysis.m_bAnalisiInstabilita})
        m_undo.Watch(*analysis);
}

HostCore::~HostCore() = default;

// ---- News

void HostCore::UpdateAllViews(CView* pSender, long lHint, CObject* pHint) {
    m_undo.CodeSent(lHint);
    m_notices.Tell(pSender, lHint, pHint);
    m_direct.CodeSent(lHint);
}

void HostCore::Idle() {
    m_notices.BeginIdle();
    m_undo.CloseImplicit();
    RefreshModified(); // what was written directly may wait for its code
    m_notices.Send();
}

void HostCore::NotifySelection(unsigned kinds) {
    m_notices.SelectionChanged(kinds);
    m_notices.Deliver();
}

void HostCore::NotifyChange(Reach reach, unsigned news, const std::vector<long>& codes) {
    RefreshModified();
    if (reach != Reach::Look) {
        FollowResults(reach);
        if (m_direct.Remember())
            m_notices.GroupsChanged();
        m_notices.ModelChanged();
    }
    m_notices.NewsCame(news);
    KeepCurrentCase();
    for (const long hint : codes)
        m_notices.Tell(nullptr, hint);
    m_notices.Deliver();
}

void HostCore::FollowResults(Reach reach) {
    if (!m_analysis.m_bRisultatiValidi)
        return;
    if (reach == Reach::Results || !m_analysis.FollowCases()) {
        m_analysis.Clear();
        m_notices.ResultsGone();
    } else if (!m_analysis.IsShown(m_data.CurrentCase())) {
        m_notices.SumChanged();
    }
}

// Undo may have taken away the case that is shown.
void HostCore::KeepCurrentCase() {
    if (!m_data.Find(Kind::LoadCase, m_data.CurrentCase()) && !m_data.Find(Kind::Combination, m_data.CurrentCase()))
        m_data.CurrentCase() = m_data.Size(Kind::LoadCase) > 0 ? m_data.At(Kind::LoadCase, 0)->GetID() : 0;
}

void HostCore::Refuse(const Refusal& refusal) const {
    if (m_refusalTeller)
        m_refusalTeller(refusal);
}

void HostCore::Tell(const CString& sentence) const {
    if (m_teller)
        m_teller(sentence);
}

void HostCore::StepMade(const StepSummary& summary) {
    Tell(Sentence(summary));
}

// ---- The file

void HostCore::Replace(DocumentData data) {
    m_selection.Forget();
    m_undo.Clear(); // before the objects that its steps refer to
    m_data = std::move(data);
    m_undo.RememberRecords();
    m_savedState = m_undo.State();
    m_flagged = false;
    NotifyChange(Reach::Results, newsNone, {});
    NotifySelection(0);
}

void HostCore::SetPathName(LPCTSTR path) {
    CQuovarDoc::SetPathName(path);
    CString name, extension;
    if (SplitPath(GetPathName(), nullptr, nullptr, &name, &extension))
        SetTitle(name);
}

void HostCore::MarkSaved() {
    m_undo.Close();
    m_savedState = m_undo.State();
    m_flagged = false;
    RefreshModified();
}

void HostCore::SetModifiedFlag(BOOL modified) {
    m_flagged = modified;
    CQuovarDoc::SetModifiedFlag(modified);
}

void HostCore::RefreshModified() {
    CQuovarDoc::SetModifiedFlag(m_flagged || m_undo.State() != m_savedState);
}

// ---- The analysis

AnalysisOutcome HostCore::RunAnalysis() {
    Idle(); // a step that is still open would make the results invalid when it ends
    AnalysisOutcome outcome = m_analysis.Run();
    m_notices.ResultsCame();
    UpdateAllViews(nullptr, outcome.refusal ? MODIFICA_RISULTATI_ELIMINATI : MODIFICA_RISULTATI, nullptr);
    return outcome;
}

} // namespace host
