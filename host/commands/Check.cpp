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

// Empty rows and headings say nothing about the model.
bool IsFinding(const CString& row) {
    return !row.IsEmpty() && row.Left(3) != "---";
}

BatchStatus PrintRows(const CListBox& list, std::FILE* out) {
    BatchStatus status = nothingFound;
    CString row;
    for (int i = 0; i < list.GetCount(); ++i) {
        list.GetText(i, row);
        std::fprintf(out, "%s\n", row.ToUtf8().c_str());
        if (IsFinding(row))
            status = found;
    }
    return std::fflush(out) == 0 && !std::ferror(out) ? status : notDone;
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
    {.menu = CommandMenu::Tools,
     .dialog = CDialogStrutture::IDD,
     .caption = "Check Strutture Multiple", // as the check's row calls it
     .open = OpenTool<CDialogStrutture>,
     .titled = false},
};

} // namespace

std::span<const Command> CheckCommands() {
    return rows;
}

BatchStatus PrintCheck(Workspace& workspace, const QString& path, std::FILE* out) {
    if (!workspace.Open(path))
        return notDone;
    CDialog* dialog = workspace.Run(*FindCommand(CDialogCheck::IDD));
    if (!dialog)
        return notDone;
    const BatchStatus status =
        PrintRows(dynamic_cast<CListBox&>(*dialog->GetDlgItem(CDialogCheck::IDC_LIST_ERRORS)), out);
    workspace.Tools().End(dialog);
    return status;
}

} // namespace host
