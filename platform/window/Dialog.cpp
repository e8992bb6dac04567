#include "platform/window/Dialog.h"

#include "platform/private/peers/DialogPeer.h"
#include "platform/resource/Resource.h"
#include "platform/resource/Units.h"
#include "platform/window/Application.h"

#include <QApplication>
#include <QEventLoop>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

using platform::DialogPeer;
using platform::WindowPeer;

namespace {

// A modal dialog rests its parent; the scope ends with the nested loop, however that ends.
class ParentLock {
  public:
    explicit ParentLock(WindowPeer* parent) : m_parent(parent), m_alive(parent ? parent->widget : nullptr) {
        if (m_parent)
            ++m_parent->modalLocks;
    }
    ~ParentLock() {
        if (m_alive)
            --m_parent->modalLocks;
    }
    ParentLock(const ParentLock&) = delete;
    ParentLock& operator=(const ParentLock&) = delete;

  private:
    WindowPeer* m_parent;
    QPointer<QWidget> m_alive;
};

WindowPeer* OwnerOf(const CWnd* parent) {
    if (!parent || !parent->m_hWnd)
        parent = AfxGetMainWnd();
    return parent && parent->m_hWnd ? parent->m_hWnd : nullptr;
}

} // namespace

CDialog::CDialog(UINT templateId, CWnd* parent) : m_pParentWnd(parent), m_template(templateId) {
}

CDialog::~CDialog() {
    CDialog::DestroyWindow();
}

const platform::DialogTemplate* CDialog::FindTemplate(UINT templateId) const {
    const int id = static_cast<int>(templateId);
    return m_hTemplateModule ? platform::FindDialogTemplate(m_hTemplateModule, id) : platform::FindDialogTemplate(id);
}

int CDialog::DoModal() {
    if (m_hWnd || !FindTemplate(m_template))
        return -1;
    WindowPeer* owner = OwnerOf(m_pParentWnd);
    const ParentLock lock(owner ? owner->TopLevel() : nullptr);
    m_ended = false;
    m_result = IDCANCEL; // of a loop that the application's end cuts short
    if (!Build(m_template, m_pParentWnd, true))
        return -1;
    if (!m_ended && m_hWnd) {
        QEventLoop loop;
        // Its owner may end it from inside the loop without asking the object.
        QObject::connect(m_hWnd->widget, &QObject::destroyed, &loop, &QEventLoop::quit);
        m_loop = &loop;
        loop.exec();
        m_loop = nullptr;
    }
    DestroyWindow();
    return m_result;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    return !m_hWnd && Build(templateId, parent ? parent : m_pParentWnd, false);
}

void CDialog::EndDialog(int result) {
    m_result = result;
    m_ended = true;
    if (m_loop)
        static_cast<QEventLoop*>(m_loop)->quit();
    if (m_hWnd)
        m_hWnd->End();
}

BOOL CDialog::DestroyWindow() {
    if (m_loop)
        static_cast<QEventLoop*>(m_loop)->quit(); // destroyed from within its own loop
    return CWnd::DestroyWindow();
}

BOOL CDialog::Build(UINT templateId, CWnd* parent, bool modal) {
    const platform::DialogTemplate* source = FindTemplate(templateId);
    if (!source)
        return FALSE;
    SuspendNotifications(false);
    // A dialog of its own belongs to the top-level window: it outlives the view or control that it was made for.
    WindowPeer* owner = OwnerOf(parent);
    if (owner && !(source->style & WS_CHILD))
        owner = owner->TopLevel();
    auto* peer = new DialogPeer(*source, owner, modal);
    const QPointer<QWidget> alive = peer->widget;
    peer->Attach(this);
    peer->live = true;
    peer->ReportSize();
    peer->AddControls(*source);
    const LRESULT wantsFocus = peer->Send(WM_INITDIALOG);
    if (!alive || peer->destroyed)
        return FALSE; // OnInitDialog ended the dialog
    if (m_ended && modal)
        return TRUE;
    const bool isWindow = peer->isWindow();
    const bool shown = modal || (peer->style & WS_VISIBLE);
    if (wantsFocus && isWindow)
        peer->FocusFirst();
    if (shown)
        peer->Open();
    if (alive && !peer->destroyed && wantsFocus && shown && !isWindow)
        peer->TakeFocus(); // of another window, which is at work already
    return TRUE;
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return IsDialogMessage(pMsg);
}

BOOL CDialog::IsDialogMessage(MSG* pMsg) {
    return m_hWnd && static_cast<DialogPeer*>(m_hWnd)->HandleKey(*pMsg);
}

namespace {

// A click or a menu's command, not one of a control's other notifications.
bool IsCommand(UINT message, WPARAM wParam) {
    return message == WM_COMMAND && HIWORD(wParam) == 0;
}

// The commands that concern more than one dialog; the numbers below them are controls'.
bool IsRouted(WPARAM wParam) {
    return HIWORD(wParam) == 0 && LOWORD(wParam) >= 0x8000 && LOWORD(wParam) < 0xF000;
}

} // namespace

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_hWnd && m_hWnd->ended && IsCommand(message, wParam))
        return 0;
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    if (!IsRouted(wParam))
        return FALSE;
    CWnd* owner = GetParent();
    if (owner && owner->OnCommand(wParam, lParam))
        return TRUE;
    return AfxGetApp() && AfxGetApp()->OnCommand(LOWORD(wParam));
}

LRESULT CDialog::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        return OnInitDialog();
    if (message == WM_CLOSE) {
        if (m_hWnd)
            static_cast<DialogPeer*>(m_hWnd)->Cancel();
        return 0;
    }
    return CWnd::DefWindowProc(message, wParam, lParam);
}
