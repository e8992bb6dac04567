#include "benchmarks/BenchDialogs.h"

#include "platform/DataExchange.h"

namespace bench {

namespace {

using Kind = platform::ControlTemplate::Kind;
constexpr DWORD Child = WS_CHILD | WS_VISIBLE;

std::vector<platform::ControlTemplate> makeForm() {
    std::vector<platform::ControlTemplate> controls;
    for (int i = 0; i < FormFields; ++i) {
        const int y = 6 + 14 * i;
        controls.push_back({Kind::Static, "STATIC", "Etichetta :", -1, 6, y + 2, 60, 8, Child | WS_GROUP, 0, 0});
        controls.push_back({Kind::Edit, "EDIT", "", FirstEdit + i, 70, y, 60, 12,
                            Child | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 0, 0});
    }
    controls.push_back(
        {Kind::Button, "BUTTON", "Segno", 200, 140, 6, 60, 10, Child | WS_TABSTOP | BS_AUTOCHECKBOX, 0, 0});
    controls.push_back({Kind::Button, "BUTTON", "Asse X", 201, 140, 20, 60, 10,
                        Child | WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON, 0, 0});
    controls.push_back({Kind::Button, "BUTTON", "Asse Y", 202, 140, 32, 60, 10, Child | BS_AUTORADIOBUTTON, 0, 0});
    controls.push_back(
        {Kind::Button, "BUTTON", "OK", IDOK, 140, 120, 50, 14, Child | WS_TABSTOP | WS_GROUP | BS_DEFPUSHBUTTON, 0, 0});
    controls.push_back({Kind::Button, "BUTTON", "Annulla", IDCANCEL, 140, 138, 50, 14, Child | WS_TABSTOP, 0, 0});
    return controls;
}

constexpr DWORD DialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;

const platform::ControlTemplate listControls[] = {
    {Kind::ListBox, "LISTBOX", "", ListControl, 0, 0, 200, 150,
     Child | WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_EXTENDEDSEL, 0, 0}};

} // namespace

const std::vector<platform::ControlTemplate>& formControls() {
    static const std::vector<platform::ControlTemplate> controls = makeForm();
    return controls;
}

void installTemplates() {
    static const platform::DialogTemplate dialogs[] = {
        {FormTemplate, 0, 0, 200, 160, "Modulo", DialogStyle, 0, "MS Sans Serif", 8, 0, formControls()},
        {ListTemplate, 0, 0, 200, 150, "Lista", DialogStyle, 0, "MS Sans Serif", 8, 0, listControls}};
    static const platform::ResourceModule module{"bench", dialogs, {}, {}, {}};
    platform::SetHostResources(&module);
}

void ListDialog::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, ListControl, list);
}

BEGIN_MESSAGE_MAP(FormDialog, CDialog)
    ON_EN_CHANGE(FirstEdit, OnChange)
END_MESSAGE_MAP()

} // namespace bench
