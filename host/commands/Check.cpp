#include "host/commands/Check.h"

#include "dialogs/check/DialogCheck.h"
#include "dialogs/check/DialogStrutture.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/commands/Subjects.h"
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

// The check window does not check on its own: this asks every open one of the document to.
void RequestCheck(HostDocument& document) {
    document.UpdateAllViews(nullptr, MODIFICA_CHECK, nullptr);
}

const Command rows[] = {
    {.menu = CommandMenu::Tools,
     .dialog = CDialogCheck::IDD,
     .open = OpenTool<CDialogCheck>,
     .place = Place::Own, // under the view
     .titled = false,
     .opened = RequestCheck},
    {.menu = CommandMenu::Tools, .dialog = CDialogStrutture::IDD, .open = OpenTool<CDialogStrutture>, .titled = false},
};

} // namespace

std::span<const Command> CheckCommands() {
    return rows;
}

int PrintCheck(Workspace& workspace, const QString& path, std::FILE* out) {
    if (!workspace.Open(path))
        return unreadable;
    CDialog* dialog = workspace.Run(*FindCommand(CDialogCheck::IDD));
    if (!dialog)
        return faulty;
    CString last;
    const bool printed =
        PrintRows(dynamic_cast<CListBox&>(*dialog->GetDlgItem(CDialogCheck::IDC_LIST_ERRORS)), out, last);
    workspace.Tools().End(dialog);
    return printed && last == closingRow ? success : faulty;
}

} // namespace host
