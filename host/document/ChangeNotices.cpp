#include "host/document/ChangeNotices.h"

#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/document/HostAnalysis.h"
#include "host/document/HostSelection.h"
#include "host/document/HostUndo.h"

#include <algorithm>
#include <utility>

namespace host {

void ChangeNotices::AddObserver(DocumentObserver* observer) {
    if (observer && std::find(m_observers.begin(), m_observers.end(), observer) == m_observers.end())
        m_observers.push_back(observer);
}

void ChangeNotices::RemoveObserver(DocumentObserver* observer) {
    const auto found = std::find(m_observers.begin(), m_observers.end(), observer);
    if (found == m_observers.end())
        return;
    if (m_notifying > 0)
        *found = nullptr; // the walk below is among them
    else
        m_observers.erase(found);
}

void ChangeNotices::Tell(CView* sender, long hint, CObject* pHint) {
    ++m_notifying;
    const std::size_t count = m_observers.size();
    for (std::size_t i = 0; i < count; ++i)
        if (m_observers[i])
            m_observers[i]->OnDocumentUpdate(sender, hint, pHint);
    if (--m_notifying == 0)
        std::erase(m_observers, nullptr);
}

void ChangeNotices::SetScheduler(std::function<void()> scheduler) {
    m_scheduler = std::move(scheduler);
}

bool ChangeNotices::ScheduleIdle() {
    if (!m_scheduler)
        return false;
    if (!std::exchange(m_idleScheduled, true))
        m_scheduler();
    return true;
}

void ChangeNotices::Deliver() {
    if (!ScheduleIdle())
        Send();
}

void ChangeNotices::Send() {
    const bool structure = std::exchange(m_pending.structure, false);
    const bool groups = std::exchange(m_pending.groups, false);
    const unsigned kinds = std::exchange(m_pending.kinds, 0u);
    if (structure)
        Tell(nullptr, MODIFICA_STRUTTURA);
    if (groups)
        Tell(nullptr, MODIFICA_GRUPPI);
    SendNews(std::exchange(m_pending.news, 0u));
    if (std::exchange(m_pending.results, false))
        Tell(nullptr, MODIFICA_RISULTATI_ELIMINATI);
    const bool sum = std::exchange(m_pending.sum, false);
    if (std::exchange(m_announcedCase, m_data.CurrentCase()) != m_data.CurrentCase() || sum)
        ShowCurrentCase();
    if (kinds != 0)
        SendSelection(kinds);
}

void ChangeNotices::SendNews(unsigned news) {
    static constexpr std::pair<unsigned, long> codes[] = {{newsLengths, MODIFICA_LUNGHEZZE},
                                                          {newsUnits, MODIFICA_UNITA},
                                                          {newsBeamDesign, MODIFICA_PROGETTO | PROGETTO_TRAVI},
                                                          {newsWallDesign, MODIFICA_PROGETTO | PROGETTO_SETTI}};
    for (const auto& [bit, code] : codes)
        if (news & bit)
            Tell(nullptr, code);
}

void ChangeNotices::SendSelection(unsigned kinds) {
    static constexpr std::pair<Kind, long> codes[] = {{Kind::Node, MODIFICA_SELEZIONE_NODI},
                                                      {Kind::Truss, MODIFICA_SELEZIONE_ASTE},
                                                      {Kind::Beam, MODIFICA_SELEZIONE_TRAVI},
                                                      {Kind::Slab, MODIFICA_SELEZIONE_SOLAI},
                                                      {Kind::Wall, MODIFICA_SELEZIONE_SETTI}};
    for (const auto& [kind, code] : codes)
        if (kinds & Bit(kind))
            Tell(nullptr, code);
    if (m_selection.IsEmpty())
        Tell(nullptr, MODIFICA_DESELEZIONE);
    Tell(nullptr, MODIFICA_SELEZIONE_FINE);
}

void ChangeNotices::ShowCurrentCase() {
    m_analysis.Show(m_data.CurrentCase());
    Tell(nullptr, MODIFICA_RISULTATI_CASO);
}

} // namespace host
