#include "host/document/DirectChanges.h"

#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/document/DocumentData.h"
#include "host/document/HostUndo.h"
#include "model/entity/Gruppo.h"

namespace host {

namespace {

const char* NameOfCode(long hint) {
    switch (CQuovarGlobal::_GetInformazioniBase(hint)) {
    case MODIFICA_CASI_CARICO:
        return "Rinomina caso di carico";
    case MODIFICA_SEZIONI_STAMPA:
        return "Sezioni di stampa";
    case MODIFICA_PROGETTO_TRAVE:
    case MODIFICA_PROGETTO_SETTO:
        return "Modifica armatura";
    default:
        return nullptr;
    }
}

} // namespace

bool DirectChanges::Remember() {
    m_caseMade = false;
    std::vector<std::pair<int, CString>> groups;
    groups.reserve(static_cast<std::size_t>(m_data.Size(Kind::Group)));
    for (int i = 0; i < m_data.Size(Kind::Group); ++i) {
        auto* group = m_data.As<CElementoStrutturale>(Kind::Group, i);
        groups.emplace_back(group->GetID(), group->GetNome());
    }
    return std::exchange(m_groups, std::move(groups)) != m_groups;
}

void DirectChanges::CodeSent(long hint) {
    if (hint == MODIFICA_CASI_CARICO && std::exchange(m_caseMade, false) && !m_undo.IsInBracket())
        m_undo.Rename("Copia caso di carico");
    m_undo.EndDirect(NameOfCode(hint));
}

} // namespace host
