#include "host/commands/CheckCommands.h"

#include "dialogs/check/DialogCheck.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"

#include <QString>

namespace host {

namespace {

enum ExitStatus { success = 0, faulty = 1, unreadable = 2 };

const char* const closingRow = "--- Fine Messaggi ---";

// False when the rows cannot be written. The last row is left in `row`.
bool PrintRows(const CListBox& list, std::FILE* out, CString& row) {
    for (int i = 0; i < list.GetCount(); ++i) {
        list.GetText(i, row);
        std::fprintf(out, "%s\n", row.ToUtf8().c_str());
    }
    return std::fflush(out) == 0 && !std::ferror(out);
}

} // namespace

void RequestCheck(HostDocument& document) {
    document.UpdateAllViews(nullptr, MODIFICA_CHECK, nullptr);
}

int PrintCheck(Workspace& workspace, const QString& path, std::FILE* out) {
    HostView* view = workspace.Open(path);
    if (!view)
        return unreadable;
    CDialogDocument* dialog =
        workspace.Tools().Open(std::make_unique<CDialogCheck>(&workspace.Window().Frame()), *view);
    if (!dialog)
        return faulty;
    RequestCheck(view->Document());
    CString last;
    const bool printed =
        PrintRows(dynamic_cast<CListBox&>(*dialog->GetDlgItem(CDialogCheck::IDC_LIST_ERRORS)), out, last);
    workspace.Tools().End(dialog);
    return printed && last == closingRow ? success : faulty;
}

} // namespace host
