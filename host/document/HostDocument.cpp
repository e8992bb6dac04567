#include "host/document/HostDocument.h"

#include "dialogs/frame/host/QuovarView.h"
#include "host/document/Division.h"
#include "model/entity/CasoCarico.h"

namespace host {

HostDocument::HostDocument() : HostCases(m_selection) {
    m_pSelezione = &m_selection;
    SetTitle("Senza nome");
    DocumentData data;
    auto loadCase = std::make_unique<CCasoCarico>();
    loadCase->SetID(1);
    loadCase->SetNome("Caso 1");
    std::unique_ptr<CElemento> object = std::move(loadCase);
    data.Append(object);
    data.CurrentCase() = 1;
    Replace(std::move(data));
}

HostDocument::~HostDocument() = default;

Adv3d* HostDocument::GetVista() {
    return m_activeView ? m_activeView->GetVista() : nullptr;
}

void HostDocument::FinishDivision() {
    FinishDivisions(*this);
}

} // namespace host
