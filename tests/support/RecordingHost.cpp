#include "tests/support/RecordingHost.h"

#include "model/entity/CasoCarico.h"

#include <gtest/gtest.h>

BEGIN_MESSAGE_MAP(RecordingView, CQuovarView)
    ON_MESSAGE(WM_FINEDIALOGO, OnFineDialogo)
END_MESSAGE_MAP()

LRESULT RecordingView::OnFineDialogo(WPARAM wParam, LPARAM lParam) {
    auto* dialog = reinterpret_cast<CDialogDocument*>(lParam);
    m_journal.Add("WM_FINEDIALOGO", wParam);
    EXPECT_EQ(dialog, tool) << "the message must carry the dialog's own address";
    if (endsDialogs && dialog == tool) {
        tool = nullptr;
        dialog->DestroyWindow();
    }
    return 0;
}

void RecordingView::Pick(double x, double y, double z) {
    ASSERT_TRUE(m_picking) << "the view is not in vector definition";
    ASSERT_TRUE(tool);
    const bool second = m_second;
    m_second = !second;
    if (second)
        tool->SetVettoreTo(CFPoint(x, y, z));
    else
        tool->SetVettoreFrom(CFPoint(x, y, z));
}

void RecordingView::StartDefinisciVettore(CString prompt, CString prompt2) {
    m_journal.Add("StartDefinisciVettore", prompt, prompt2);
    m_picking = 1;
    m_second = false;
}

void RecordingView::StopDefinisciVettore() {
    m_journal.Add("StopDefinisciVettore");
    m_picking = 0;
}

RecordingHost::RecordingHost() : doc(journal) {
    Install(this);
    frame.Create(nullptr, "Quovar", WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE, CRect(0, 0, 900, 700), nullptr, 0);
    doc.SetPathName("/lavori/Ponte.asg");
    doc.view = &AddView();
    doc.onUpdate = [this](CView* sender, long hint, CObject* object) {
        for (const auto& view : m_views)
            if (view->tool)
                view->tool->Update(sender, hint, object);
    };
}

RecordingHost::~RecordingHost() {
    Install(nullptr);
    for (const auto& view : m_views)
        view->DestroyWindow();
    frame.DestroyWindow();
}

RecordingView& RecordingHost::AddView() {
    auto view = std::make_unique<RecordingView>(journal, doc);
    view->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 600, 400), &frame, 0);
    m_views.push_back(std::move(view));
    return *m_views.back();
}

void RecordingHost::CloseView(RecordingView& view) {
    for (const auto& other : m_views)
        if (other->tool)
            other->tool->VistaEliminata(&view);
    view.tool = nullptr;
    view.DestroyWindow();
}

int RecordingHost::Open(CDialogDocument& dialog) {
    return Open(dialog, View());
}

int RecordingHost::Open(CDialogDocument& dialog, RecordingView& view) {
    view.tool = &dialog;
    return dialog.Create(&view);
}

// Change code in the low half, additional value above it.
ModificaDocumento RecordingHost::GetInformazioniBase(long lHint) {
    return static_cast<ModificaDocumento>(lHint & 0xffff);
}
long RecordingHost::GetInformazioniAggiuntive(long lHint) {
    return lHint & 0xffff0000L;
}
void RecordingHost::SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore) {
    lHint = (lHint & 0xffffUL) | static_cast<unsigned long>(valore) << 16;
}

CCasoCarico* RecordingHost::CreaCasoCarico(CQuovarDoc* pDoc) {
    journal.Add("CreaCasoCarico", static_cast<const CObject*>(pDoc));
    if (!createsCases)
        return nullptr;
    auto entity = std::make_unique<CCasoCarico>();
    const int id = static_cast<int>(doc.casi.size()) + 1;
    CString name;
    name.Format("Caso %d", id);
    entity->SetID(id);
    entity->SetNome(name);
    doc.casi.push_back(std::move(entity));
    return doc.casi.back().get();
}
