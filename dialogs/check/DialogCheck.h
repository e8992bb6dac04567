// Lists what would make the analysis of the model impossible; picking rows selects the objects that they are about.
#pragma once

#include "dialogs/check/StructureSearch.h"
#include "dialogs/frame/common/ElementSelection.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "platform/controls/ListBox.h"

class CElemento;

class CDialogCheck : public CDialogDocument, private StructureSearch {
    DECLARE_DYNAMIC(CDialogCheck)

  public:
    enum : UINT { IDD = 109 };
    enum : int { IDC_LIST_ERRORS = 1086 };

    explicit CDialogCheck(CWnd* pParent = nullptr);

    // Change code 97 runs the check; the structures stay those found when the window opened.
    void Update(CView* pSender, long lHint, CObject* pHint) override;
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void OnOK() override; // Enter must not close the window
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnSize(UINT nType, int cx, int cy);
    void OnSelchangeListErrors();

  private:
    // With the object that the row is about, which picking it selects.
    void AddRiga(const CString& text, ElementKind kind = ElementKind::None, int id = 0);
    void Clear();
    void Check();
    void CheckStructures(CQuovarDoc& doc);
    void CheckBeams(CQuovarDoc& doc);
    void CheckRotations(CQuovarDoc& doc);
    bool CheckElements(CQuovarDoc& doc);
    int CheckElemento(CElemento* pElemento); // 0 when it reported problems of its own
    void PlaceWindow();
    void ReposEditErrori();

    CListBox m_listErrori;
    // By row number at adding, which is each row's item data.
    CUIntArray m_aTipi;
    CUIntArray m_aID;

    DECLARE_MESSAGE_MAP()
};
