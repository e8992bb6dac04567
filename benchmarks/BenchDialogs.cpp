#include "benchmarks/BenchDialogs.h"

#include "platform/window/DataExchange.h"

namespace bench {

namespace {

using Kind = platform::ControlTemplate::Kind;
constexpr DWORD child = WS_CHILD | WS_VISIBLE;

std::vector<platform::ControlTemplate> MakeForm() {
    std::vector<platform::ControlTemplate> controls;
    for (int i = 0; i < formFields; ++i) {
        const int y = 6 + 14 * i;
        controls.push_back({Kind::Static, "STATIC", "Etichetta :", -1, 6, y + 2, 60, 8, child | WS_GROUP, 0, 0});
        controls.push_back({Kind::Edit, "EDIT", "", firstEdit + i, 70, y, 60, 12,
                            child | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 0, 0});
    }
    controls.push_back(
        {Kind::Button, "BUTTON", "Segno", 200, 140, 6, 60, 10, child | WS_TABSTOP | BS_AUTOCHECKBOX, 0, 0});
    controls.push_back({Kind::Button, "BUTTON", "Asse X", 201, 140, 20, 60, 10,
                        child | WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON, 0, 0});
    controls.push_back({Kind::Button, "BUTTON", "Asse Y", 202, 140, 32, 60, 10, child | BS_AUTORADIOBUTTON, 0, 0});
    controls.push_back(
        {Kind::Button, "BUTTON", "OK", IDOK, 140, 120, 50, 14, child | WS_TABSTOP | WS_GROUP | BS_DEFPUSHBUTTON, 0, 0});
    controls.push_back({Kind::Button, "BUTTON", "Annulla", IDCANCEL, 140, 138, 50, 14, child | WS_TABSTOP, 0, 0});
    return controls;
}

constexpr DWORD dialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;

const platform::ControlTemplate listControls[] = {
    {Kind::ListBox, "LISTBOX", "", listControl, 0, 0, 200, 150,
     child | WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_EXTENDEDSEL, 0, 0}};

} // namespace

const std::vector<platform::ControlTemplate>& FormControls() {
    static const std::vector<platform::ControlTemplate> controls = MakeForm();
    return controls;
}

void InstallTemplates() {
    static const platform::DialogTemplate dialogs[] = {
        {formTemplate, 0, 0, 200, 160, "Modulo", dialogStyle, 0, "MS Sans Serif", 8, 0, FormControls()},
        {listTemplate, 0, 0, 200, 150, "Lista", dialogStyle, 0, "MS Sans Serif", 8, 0, listControls}};
    static const platform::ResourceModule module{"bench", dialogs, {}, {}, {}};
    platform::SetHostResources(&module);
}

void ListDialog::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, listControl, list);
}

BEGIN_MESSAGE_MAP(FormDialog, CDialog)
    ON_EN_CHANGE(firstEdit, OnChange)
END_MESSAGE_MAP()

} // namespace bench
