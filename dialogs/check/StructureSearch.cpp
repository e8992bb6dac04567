#include "dialogs/check/StructureSearch.h"

#include "dialogs/frame/common/Reporting.h"
#include "dialogs/frame/host/MainFrame.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "model/element/Nodo.h"
#include "platform/core/Exception.h"

#include <algorithm>
#include <memory>
#include <vector>

StructureSearch::~StructureSearch() {
    RemoveAllStructures();
}

CObArray* StructureSearch::GetIndexStructure(int i) const {
    return i >= 0 && i < GetSizeStructures() ? static_cast<CObArray*>(m_aStrutture[i]) : nullptr;
}

CObArray* StructureSearch::NewArray() {
    return platform::Allocating([] { return new CObArray; });
}

CObArray* StructureSearch::InsertNewStructure() {
    std::unique_ptr<CObArray> structure;
    const bool added = RunReporting([&] {
        structure.reset(NewArray());
        m_aStrutture.Add(structure.get());
    });
    return added ? structure.release() : nullptr;
}

void StructureSearch::AddStructure(CQuovarDoc& doc, CNodo* seed) {
    CObArray* structure = InsertNewStructure();
    if (!structure)
        return;
    doc.m_pSelezione->SelezionaStruttura(seed, structure);
    const int number = GetSizeStructures() - 1;
    for (CObject* entry : *structure)
        if (auto* node = DYNAMIC_DOWNCAST(CNodo, entry))
            m_index.Add(node, number, node->GetID());
}

void StructureSearch::FindStructures(CQuovarDoc* pDoc) {
    RemoveAllStructures();
    const int nodes = pDoc ? pDoc->GetSizeNodi() : 0;
    if (nodes == 0)
        return;
    platform::Allocating([&] { m_index.Reserve(static_cast<std::size_t>(nodes)); });
    if (CNodo* first = pDoc->GetIndexNodo(0))
        AddStructure(*pDoc, first);
    const WaitBar wait("Attendere...Ricerca delle strutture", static_cast<unsigned int>(nodes));
    for (int i = 0; i < nodes; ++i) {
        CMainFrame::_StepBar();
        CNodo* node = pDoc->GetIndexNodo(i);
        if (node && !ThereNodo(node))
            AddStructure(*pDoc, node);
    }
}

int StructureSearch::ThereNodo(CNodo* pNodo) const {
    return m_index.Find(pNodo) != NodeIndex::none;
}

int StructureSearch::ThereNodo(CNodo* pNodo, int s) const {
    const int first = m_index.Find(pNodo);
    if (first == s || first == NodeIndex::none)
        return first != NodeIndex::none;
    // A host may hand a node out twice; the index knows the first structure only.
    const CObArray* structure = GetIndexStructure(s);
    return structure && std::find(structure->begin(), structure->end(), pNodo) != structure->end();
}

void StructureSearch::RemoveAllStructures() {
    for (CObject* structure : m_aStrutture)
        delete structure;
    m_aStrutture.RemoveAll();
    m_index.Clear();
}

bool StructureSearch::IsCurrent(const CObject* entry, const CurrentNodes& current) const {
    return current.Has(entry, m_index.IdOf(entry));
}

CurrentNodes::CurrentNodes(DocumentLists& lists) {
    const int nodes = lists.GetSizeNodi();
    platform::Allocating([&] { m_index.Reserve(static_cast<std::size_t>(nodes)); });
    for (int i = 0; i < nodes; ++i)
        if (CNodo* node = lists.GetIndexNodo(i))
            m_index.Add(node, 0, node->GetID());
}
