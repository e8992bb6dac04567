// The 3D structure view, as the dialogs use it.
#pragma once

#include "platform/window/View.h"

class Adv3d;
class CElementoSettings;
class CQuovarDoc;

// Sent by a tool dialog to its view when it wants to be ended: wParam is one of the two values below, lParam the
// address of the dialog. The view ends the dialog before it returns, so the sender touches nothing afterwards.
inline constexpr UINT WM_FINEDIALOGO = 1127;
inline constexpr WPARAM FINEDIALOGO_CONFERMATO = 1;
inline constexpr WPARAM FINEDIALOGO_ANNULLATO = 2;

class CQuovarView : public CView {
  public:
    virtual CQuovarDoc* GetDocument() = 0;

    // Picking of points for the view's tool dialog: while the mode is on, the first pick of a pair goes to
    // SetVettoreFrom, the second to SetVettoreTo. Stop and start again to ask for one more "from" point.
    virtual void StartDefinisciVettore(CString prompt, CString prompt2) = 0;
    virtual void StopDefinisciVettore() = 0;
    virtual int IsDefinisciVettore() = 0;

    // What the user may select; non-zero for yes.
    virtual int IsSelectNodi() = 0;
    virtual int IsSelectTravi() = 0;
    virtual int IsSelectAste() = 0;
    virtual int IsSelectSetti() = 0;
    virtual int IsSelectSolai() = 0;
    virtual int IsSelectElementi() = 0;

    virtual CElementoSettings& GetNodoSettings() = 0;
    virtual CElementoSettings& GetTraveSettings() = 0;
    virtual CElementoSettings& GetSettoSettings() = 0;
    virtual int IsDrawRisultatoSetti() = 0;
    virtual int IsDrawProgettoSetti() = 0;
    virtual int IsDrawPressioneTerreno() = 0;
    virtual int GetProgettoSetti() = 0;
    virtual Adv3d* GetVista() = 0;
    // The rectangle to capture, in screen coordinates; then the capture itself.
    virtual void SetRectImmagine(int left, int top, int right, int bottom) = 0;
    virtual void CatturaImmagine() = 0;
};
