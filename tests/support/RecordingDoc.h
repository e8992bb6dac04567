// A document that writes down what it is told to do and holds a handful of objects, so that lists and selections work.
// Tests set its results and its contents.
#pragma once

#include "dialogs/frame/host/QuovarProgetto.h"
#include "tests/support/RecordingAnalysis.h"
#include "tests/support/RecordingCases.h"
#include "tests/support/RecordingSelection.h"

#include <functional>

class RecordingView;

class RecordingDoc : public RecordingCases {
  public:
    explicit RecordingDoc(Journal& journal);
    ~RecordingDoc() override;

    // Results of what the dialogs ask for.
    int unica = 1;
    Lunghezza length{};
    RecordingView* view = nullptr;
    std::function<void(CView*, long, CObject*)> onUpdate; // reaches the open tool dialogs

    RecordingAnalysis analisi;
    CQuovarProgetto progetto;
    RecordingSelection selezione;
    RecordingUndo undo;

    void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) override;
    Lunghezza GetLunghezza() override { return length; }
    CQuovarView* GetViewStructure() override;
    Adv3d* GetVista() override;
    CQuovarSelection* GetSelection() override { return &selezione; }
    int IsUnica() override { return unica; }
};
