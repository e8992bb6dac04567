// The open project, as the dialogs use it. The host implements it and owns everything that it hands out: a dialog
// keeps such pointers no longer than the document keeps the objects, and never deletes them.
// Indexes are 0-based in document order; identifiers are the numbers shown to the user; points and lengths are in the
// document's length unit; a null result means "none".
//
// Each subject is an interface with a header of its own, for code that needs no more of the document than that.
#pragma once

#include "dialogs/frame/host/DocumentCases.h"
#include "dialogs/frame/host/DocumentGeneration.h"
#include "dialogs/frame/host/DocumentGroups.h"
#include "dialogs/frame/host/DocumentLists.h"
#include "dialogs/frame/host/DocumentSelected.h"
#include "model/values/Units.h"
#include "platform/window/View.h"

class Adv3d;
class CQuovarAnalisi;
class CQuovarProgetto;
class CQuovarUndo;
class CQuovarView;

class CQuovarDoc : public CDocument,
                   public DocumentLists,
                   public DocumentSelected,
                   public DocumentGeneration,
                   public DocumentCases,
                   public DocumentGroups {
  public:
    CQuovarAnalisi* m_pAnalisi = nullptr;
    CQuovarProgetto* m_pProgetto = nullptr;
    CQuovarSelection* m_pSelezione = nullptr;
    CQuovarUndo* m_pUndo = nullptr;

    // Tells every view and open tool dialog before it returns, so the caller must be in a consistent state.
    // lHint is a ModificaDocumento code, with an additional value; pHint is null or an Adv3dRect*.
    virtual void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) = 0;
    virtual Lunghezza GetLunghezza() = 0;
    // The active structure view, and its projection; null when the document has none.
    virtual CQuovarView* GetViewStructure() = 0;
    virtual Adv3d* GetVista() = 0;

    // Assign a rotation angle to the beams shown, or to the selected ones; undo and redraw are the host's.
    virtual void AssegnaBetaVista(double beta, int flag1, int flag2) = 0;
    virtual void AssegnaBetaSelezione(double beta, int flag1, int flag2) = 0;
    // Non-zero when the model is one connected structure.
    virtual int IsUnica() = 0;
};
