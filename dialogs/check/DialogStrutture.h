// The separate structures of the model, each with a box; the elements of the ticked ones are selected.
#pragma once

#include "dialogs/check/StructureSearch.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "platform/controls/TreeCtrl.h"

class CDialogStrutture : public CDialogDocument, protected StructureSearch {
    DECLARE_DYNAMIC(CDialogStrutture)

  public:
    enum : UINT { IDD = 110 };
    enum : int { IDC_TREE_STRUTTURE = 1078 };

    explicit CDialogStrutture(CWnd* pParent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnClickTreeStrutture(NMHDR* pNMHDR, LRESULT* pResult);
    void OnKeydownTreeStrutture(NMHDR* pNMHDR, LRESULT* pResult);
    void OnTimer(UINT_PTR nIDEvent);

    // Selects every element that meets at a node of the structure; null does nothing. The nodes that the document still
    // has are gathered once for all structures.
    void SelezionaStruttura(CObArray* pStruttura, const CurrentNodes& current);
    void AggiornaListCtrl();
    // The indexes of the ticked structures, in the order of the tree.
    void GetStructureSel(CUIntArray& indici);

    CTreeCtrl m_treeStrutture;

  private:
    // Reads the ticks once the tree has toggled the box.
    void ReadTicksSoon();
    void SelectTicked(CQuovarDoc& doc);

    DECLARE_MESSAGE_MAP()
};
