// The open project of the application: it owns the model, its selection and its undo recorder, and carries out the
// commands of the dialogs. Lengths and forces are in the document's units.
//
// Every change of the model goes through the recorder (HostUndo). A command outside a bracket of its own is one step.
// After each step, undo and redo the observers hear MODIFICA_STRUTTURA, after a change of the selection
// MODIFICA_SELEZIONE_FINE and the code of each kind concerned.
//
// What it can do stands by subject in the classes that it is made of: HostCore (state, news, file, analysis),
// HostLists, HostEditing, HostGeneration, HostCases.
#pragma once

#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/document/HostCases.h"

namespace host {

class HostDocument : public HostCases {
  public:
    HostDocument(); // an empty project in metres and kilonewtons with one load case
    ~HostDocument() override;

    // The view that GetViewStructure and GetVista answer with; null when the document has none.
    void SetActiveView(CQuovarView* view) { m_activeView = view; }
    CQuovarView* GetViewStructure() override { return m_activeView; }
    Adv3d* GetVista() override;

  private:
    void FinishDivision() override;

    HostSelection m_selection{*this};
    CQuovarView* m_activeView = nullptr;
};

} // namespace host
