#include "tests/dialogs/Contract.h"

#include "dialogs/results/DialogDiagrammi.h"
#include "platform/window/Dialog.h"
#include "platform/window/Styles.h"
#include "tests/dialogs/TemplateInventory.h"

#include <algorithm>

// Lets a test read the message map of any window.
struct platform::MessageMapAccess {
    static const MessageMap& Of(const CWnd& window) { return window.GetMessageMap(); }
};

namespace {

using Control = platform::ControlTemplate;

// Of the pop-up menus that dialogs track.
const int menus[] = {inventory::scaleMenu, CDialogDiagrammi::IDR_MENU_DIAGRAMMI, inventory::fileMenu};

bool IsVisibleEdit(const Control& control) {
    return control.kind == Control::Kind::Edit && (control.style & WS_VISIBLE);
}

bool IsField(const Control& control) {
    return IsVisibleEdit(control) && !(control.style & ES_READONLY);
}

bool IsChoice(const Control& control) {
    const DWORD type = control.style & BS_TYPEMASK;
    return control.kind == Control::Kind::Button && (type == BS_AUTORADIOBUTTON || type == BS_AUTOCHECKBOX);
}

std::set<int> NumbersOf(int templateId) {
    std::set<int> ids;
    if (const platform::DialogTemplate* source = platform::FindDialogTemplate(templateId))
        for (const Control& control : source->controls)
            ids.insert(control.id);
    for (const int menu : menus)
        if (const platform::MenuTemplate* source = platform::FindMenu(menu))
            for (const platform::MenuItemTemplate& item : source->items)
                ids.insert(item.id);
    return ids;
}

} // namespace

ContractFields::ContractFields(int templateId) {
    AttachDialogModule();
    if (const platform::DialogTemplate* source = platform::FindDialogTemplate(templateId))
        m_controls = source->controls;
    EXPECT_FALSE(m_controls.empty()) << "no template " << templateId;
}

bool ContractFields::Any() const {
    return std::ranges::any_of(m_controls, IsField);
}

std::string ContractFields::Shown(const DialogDriver& driver) const {
    std::string all;
    for (const Control& control : m_controls) {
        std::string text;
        if (IsChoice(control) && driver.Checked(control.id))
            text = "[" + driver.Text(control.id) + "]";
        else if (IsVisibleEdit(control))
            text = (!IsField(control) ? "=" : driver.Enabled(control.id) ? "" : "-") + driver.Text(control.id);
        else
            continue;
        all += (all.empty() ? "" : " ") + text;
    }
    return all;
}

void ContractFields::Type(DialogDriver& driver, const std::vector<std::string>& texts) const {
    auto next = m_controls.begin();
    for (const std::string& text : texts) {
        const auto choice = std::ranges::find_if(m_controls, [&](const Control& control) {
            return IsChoice(control) && "[" + driver.Text(control.id) + "]" == text;
        });
        if (choice != m_controls.end()) {
            driver.Click(choice->id);
            continue;
        }
        while (next != m_controls.end() && !(IsField(*next) && driver.Enabled(next->id)))
            ++next;
        ASSERT_NE(next, m_controls.end()) << "no edit for " << text;
        driver.Type(next++->id, text);
    }
}

void ContractFields::SpoilTexts(DialogDriver& driver) const {
    for (const Control& control : m_controls)
        if (IsField(control))
            driver.SetText(control.id, driver.Text(control.id) + ",5");
}

void ContractFields::SetTexts(DialogDriver& driver, const std::string& text) const {
    for (const Control& control : m_controls)
        if (IsField(control))
            driver.SetText(control.id, text);
}

void ContractFields::ClickOtherChoices(DialogDriver& driver) const {
    for (const Control& control : m_controls)
        if (IsChoice(control) && driver.Enabled(control.id) && !driver.Checked(control.id))
            driver.Click(control.id);
}

void ContractFields::ClickEverything(DialogDriver& driver) const {
    for (const Control& control : m_controls) {
        if (control.kind == Control::Kind::ListBox)
            for (int row = 0; row < static_cast<int>(driver.Rows(control.id).size()); ++row)
                driver.ClickRow(control.id, row);
        if (control.kind == Control::Kind::Custom && std::string_view(control.className) == "SysTreeView32") {
            driver.SetFocus(control.id);
            driver.Press({VK_DOWN, VK_SPACE});
            DialogDriver::Wait(150); // what the key did is read later
        }
    }
    for (const Control& control : m_controls)
        if (control.kind == Control::Kind::Button && control.id > IDCANCEL && driver.Enabled(control.id))
            driver.Click(control.id);
}

void ContractFields::ExpectNoPlaceholder(const DialogDriver& driver) const {
    for (const Control& control : m_controls) {
        if (control.kind == Control::Kind::Static && control.image == 0 && control.id > 0) {
            EXPECT_NE(driver.Text(control.id), "Static") << control.id;
        }
    }
}

void HoldNothing(RecordingHost& host) {
    const auto hold = [](auto& list) {
        list.push_back(nullptr);
        list.push_back(std::make_unique<typename std::decay_t<decltype(list)>::value_type::element_type>());
        list.back()->SetID(1);
        list.push_back(nullptr);
        return list[1].get();
    };
    RecordingDoc& doc = host.doc;
    for (CElemento* element : std::initializer_list<CElemento*>{hold(doc.nodi), hold(doc.travi), hold(doc.aste),
                                                                hold(doc.setti), hold(doc.solai)})
        doc.selected.AddTail(element);
    hold(doc.casi);
    hold(doc.combinazioni);
    hold(doc.gruppi);
    hold(doc.materiali);
    hold(doc.sezioni);
    hold(doc.spessori);
    doc.analisi.m_bRisultatiValidi = 1;
    doc.view = nullptr;
    host.hasFrame = host.createsCases = false;
}

void ContractFields::RefusesTexts(DialogDriver& driver, UserScript& user, const std::set<int>& whole,
                                  const std::set<int>& texts, const std::function<void()>& refused) const {
    for (const Control& control : m_controls) {
        if (!IsField(control) || texts.contains(control.id) || !driver.Enabled(control.id))
            continue;
        const std::string valid = driver.Text(control.id);
        const std::string invalid = valid + ",5"; // the number before the comma is no change, for who looks at each key
        driver.SetText(control.id, invalid);
        user.ExpectMessage(whole.contains(control.id) ? "Immettere un numero intero." : "Immettere un numero.");
        refused();
        EXPECT_EQ(driver.Text(control.id), invalid);
        EXPECT_EQ(driver.Focus(), control.id);
        driver.SetText(control.id, valid);
    }
}

void ExpectHandledNumbersExist(const CWnd& dialog, int templateId, const std::set<int>& commands) {
    const std::set<int> ids = NumbersOf(templateId);
    const platform::MessageMap& end = platform::MessageMapAccess::Of(CDialog());
    const platform::MessageMap* map = &platform::MessageMapAccess::Of(dialog);
    for (; map && map != &end; map = map->base) {
        for (std::size_t i = 0; i < map->count; ++i) {
            const platform::MessageEntry& entry = map->entries[i];
            if (entry.message != WM_COMMAND && entry.message != WM_NOTIFY)
                continue;
            for (UINT number = entry.idFirst; number <= entry.idLast; ++number) {
                const int id = static_cast<int>(number);
                EXPECT_TRUE(ids.contains(id) || commands.contains(id)) << "no control or menu command " << id;
            }
        }
    }
    EXPECT_TRUE(map) << "the maps were not read";
}
