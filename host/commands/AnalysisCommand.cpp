#include "host/commands/AnalysisCommand.h"

#include "host/document/HostDocument.h"
#include "platform/window/Application.h"

#include <chrono>
#include <new>

namespace host {

namespace {

constexpr std::size_t mostSentences = 12; // as many as a message box shows well

CString Joined(const CString& first, const std::vector<CString>& sentences) {
    CString text = first;
    for (std::size_t i = 0; i < sentences.size() && i < mostSentences; ++i)
        text += "\n" + sentences[i];
    if (sentences.size() > mostSentences) {
        CString more;
        more.Format("\n(e altre %d)", static_cast<int>(sentences.size() - mostSentences));
        text += more;
    }
    return text;
}

} // namespace

bool RunAnalysis(HostDocument& document) {
    if (!document.m_pAnalisi->m_bAnalisiStatica) {
        AfxMessageBox("L'analisi statica non è attiva."_t, MB_OK | MB_ICONEXCLAMATION);
        return false;
    }
    AnalysisOutcome outcome;
    const auto start = std::chrono::steady_clock::now();
    try {
        outcome = document.RunAnalysis();
    } catch (const std::bad_alloc&) {
        outcome.refusal = Refusal("Memoria insufficiente.");
    }
    if (outcome.refusal) {
        document.Tell("Analisi non eseguita.");
        AfxMessageBox("Analisi non eseguita.\n" + outcome.refusal->message, MB_OK | MB_ICONEXCLAMATION);
        return false;
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    CString seconds;
    seconds.Format("%.1f", took.count());
    seconds.Replace(".", ",");
    document.Tell("Analisi eseguita in " + seconds + " s.");
    const CQuovarAnalisi& asked = *document.m_pAnalisi;
    if (asked.m_bAnalisiModale || asked.m_bAnalisiSpettro || asked.m_bAnalisiInstabilita)
        outcome.notes.push_back("Solo l'analisi statica è disponibile."_t);
    if (!outcome.notes.empty())
        AfxMessageBox(Joined("Analisi eseguita con queste limitazioni:", outcome.notes), MB_OK | MB_ICONINFORMATION);
    return true;
}

} // namespace host
