#include "host/document/HostDocument.h"

#include "dialogs/frame/host/QuovarView.h"
#include "host/document/Division.h"
#include "host/document/NewModel.h"

namespace host {

HostDocument::HostDocument() : HostCases(m_selection) {
    m_pSelezione = &m_selection;
    SetTitle("Senza nome");
    Replace(EmptyModel());
}

HostDocument::~HostDocument() = default;

Adv3d* HostDocument::GetVista() {
    return m_activeView ? m_activeView->GetVista() : nullptr;
}

void HostDocument::FinishDivision() {
    FinishDivisions(*this);
}

} // namespace host
