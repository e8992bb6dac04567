#include "dialogs/frame/tool/PointCycleDialog.h"

PointCycleDialog::PointCycleDialog(UINT nIDD, CWnd* pParent, Prompts prompts, int& counter, int first)
    : ConfirmedDialog(nIDD, pParent), m_prompts(prompts), m_counter(counter), m_first(first) {
}

void PointCycleDialog::StartCycle() {
    m_counter = GetView() ? m_first : 0;
    StartPicking(m_prompts.front());
}

void PointCycleDialog::SetVettoreFrom(CFPoint point) {
    if (!GetView())
        return;
    UpdateData(TRUE);
    const int picks = static_cast<int>(m_prompts.size());
    const int pick = m_counter - m_first;
    const bool known = pick >= 0 && pick < picks;
    if (known)
        StorePick(pick, point);
    else
        StrayPick();
    UpdateData(FALSE);
    if (!known)
        return;
    const int next = (pick + 1) % picks;
    m_counter = m_first + next;
    if (next > 0)
        RestartPicking(m_prompts[static_cast<std::size_t>(next)]);
    else
        CycleDone();
}

void PointCycleDialog::CycleDone() {
    RestartPicking(m_prompts.front());
}

void PointsOnceDialog::CycleDone() {
    if (CQuovarView* pView = GetView())
        pView->StopDefinisciVettore();
    OnOK();
}
