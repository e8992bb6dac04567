#include "model/entity/Gruppo.h"

#include "model/element/TipoElemento.h"

#include <utility>

IMPLEMENT_DYNCREATE(CGruppo, CElementoStrutturale)

CGruppo::CGruppo() : CElementoStrutturale(TipoElemento::Gruppo) {
}

CElemento& CGruppo::operator=(CElemento& altro) {
    CElementoStrutturale::operator=(altro);
    if (const auto* group = DYNAMIC_DOWNCAST(CGruppo, &altro)) {
        m_members = group->m_members;
        m_positions = group->m_positions;
    }
    return *this;
}

int CGruppo::AddElemento(unsigned tipo, int id) {
    if (!m_positions.emplace(Key(tipo, id), GetSizeElementi()).second)
        return 0;
    m_members.push_back({tipo, id});
    return 1;
}

// The last member takes the place of the one that goes: a group is a set, and large ones are emptied one by one.
int CGruppo::RemoveElement(unsigned tipo, int id) {
    const auto found = m_positions.find(Key(tipo, id));
    if (found == m_positions.end())
        return 0;
    const auto place = static_cast<std::size_t>(found->second);
    m_positions.erase(found);
    if (place + 1 < m_members.size()) {
        m_members[place] = m_members.back();
        m_positions[Key(m_members[place].kind, m_members[place].id)] = static_cast<int>(place);
    }
    m_members.pop_back();
    return 1;
}

void CGruppo::RestoreElement(int place, unsigned tipo, int id) {
    if (!AddElemento(tipo, id) || place < 0 || place + 1 >= GetSizeElementi())
        return;
    Member& there = m_members[static_cast<std::size_t>(place)];
    std::swap(there, m_members.back());
    m_positions[Key(tipo, id)] = place;
    m_positions[Key(m_members.back().kind, m_members.back().id)] = GetSizeElementi() - 1;
}

int CGruppo::GetIndexElemento(unsigned tipo, int id) const {
    const auto found = m_positions.find(Key(tipo, id));
    return found == m_positions.end() ? -1 : found->second;
}

unsigned CGruppo::GetElementKindAt(int i) const {
    return i >= 0 && i < GetSizeElementi() ? m_members[static_cast<std::size_t>(i)].kind : 0;
}

int CGruppo::GetElementIdAt(int i) const {
    return i >= 0 && i < GetSizeElementi() ? m_members[static_cast<std::size_t>(i)].id : 0;
}
