#include "host/ui/Shortcuts.h"

#include "host/commands/AssignForm.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QVBoxLayout>

#include <map>

namespace host {

namespace {

QString KeyOf(const QAction& action) {
    return QStringLiteral("tasti/") + action.objectName();
}

QTableWidgetItem* FixedItem(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

// The table of the dialog: commands and, to be typed over, their keys.
class ShortcutTable {
  public:
    explicit ShortcutTable(const Shortcuts& shortcuts)
        : m_shortcuts(shortcuts), m_table(new QTableWidget(static_cast<int>(shortcuts.size()), 2)) {
        m_table->setObjectName("tasti");
        m_table->setHorizontalHeaderLabels({"Comando", "Tasti"});
        m_table->verticalHeader()->hide();
        m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
        m_table->setTabKeyNavigation(false);
        m_table->setMinimumSize(460, 340);
        for (int row = 0; row < m_table->rowCount(); ++row) {
            m_table->setItem(row, 0, FixedItem(At(row).caption));
            m_table->setItem(row, 1, new QTableWidgetItem(At(row).action->shortcut().toString()));
        }
        m_table->setCurrentCell(0, 1);
    }

    QTableWidget* Widget() { return m_table; }
    QKeySequence Keys(int row) const { return QKeySequence(m_table->item(row, 1)->text().trimmed()); }

    void SetStandard() {
        for (int row = 0; row < m_table->rowCount(); ++row)
            m_table->item(row, 1)->setText(At(row).standard.toString());
    }

    bool Check() {
        std::map<QKeySequence, int> taken;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            const QString text = m_table->item(row, 1)->text().trimmed();
            QString why = RefusalOfKeys(text);
            const auto [other, isNew] = taken.insert({Keys(row), row});
            if (why.isEmpty() && !text.isEmpty() && !isNew)
                why = QStringLiteral("\"%1\" appartiene al comando \"%2\".").arg(text, At(other->second).caption);
            if (!why.isEmpty()) {
                AfxMessageBox(platform::FromQString(why));
                m_table->setCurrentCell(row, 1);
                m_table->setFocus();
                return false;
            }
        }
        return true;
    }

  private:
    const Shortcut& At(int row) const { return m_shortcuts[static_cast<std::size_t>(row)]; }

    const Shortcuts& m_shortcuts;
    QTableWidget* m_table; // the form's
};

} // namespace

QString RefusalOfKeys(const QString& text) {
    if (text.isEmpty())
        return {};
    const QKeySequence keys(text);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        return QStringLiteral("\"%1\" non è una combinazione di tasti.").arg(text);
    const Qt::Key key = keys[0].key();
    const bool alone = !(keys[0].keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (alone && (key < Qt::Key_F1 || key > Qt::Key_F12) && key != Qt::Key_Delete)
        return QStringLiteral("\"%1\": servono Ctrl o Alt, oppure un tasto funzione.").arg(text);
    return {};
}

void RestoreShortcuts(const Shortcuts& shortcuts, const QSettings& settings) {
    for (const Shortcut& each : shortcuts)
        if (const QString key = KeyOf(*each.action); settings.contains(key))
            if (const QString text = settings.value(key).toString(); RefusalOfKeys(text).isEmpty())
                each.action->setShortcut(QKeySequence(text));
}

bool EditShortcuts(QWidget& parent, const Shortcuts& shortcuts, QSettings* settings) {
    ShortcutTable table(shortcuts);
    AssignForm form(parent, "Tasti di scelta rapida");
    form.Content().addWidget(new QLabel("Scrivere i tasti di un comando, per esempio Ctrl+T; niente per toglierli."));
    form.Content().addWidget(table.Widget());
    auto* standard = new QPushButton("&Predefiniti");
    QObject::connect(standard, &QPushButton::clicked, &form, [&table] { table.SetStandard(); });
    form.Content().addWidget(standard, 0, Qt::AlignLeft);
    form.SetCheck([&table] { return table.Check(); });
    if (!form.Ask())
        return false;
    for (std::size_t i = 0; i < shortcuts.size(); ++i) {
        const Shortcut& each = shortcuts[i];
        const QKeySequence keys = table.Keys(static_cast<int>(i));
        each.action->setShortcut(keys);
        if (settings && keys == each.standard)
            settings->remove(KeyOf(*each.action));
        else if (settings)
            settings->setValue(KeyOf(*each.action), keys.toString(QKeySequence::PortableText));
    }
    return true;
}

} // namespace host
