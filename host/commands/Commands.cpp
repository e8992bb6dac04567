#include "host/commands/Commands.h"

#include "host/commands/Subjects.h"
#include "platform/resource/Resource.h"
#include "platform/toolkit/Bridge.h"

#include <QString>

#include <algorithm>

namespace host {

const std::vector<const Command*>& Commands() {
    static const std::vector<const Command*> all = [] {
        std::vector<const Command*> rows;
        for (const auto subject : {GenerationCommands(), SelectionCommands(), LoadCommands(), ResultCommands(),
                                   CheckCommands(), ViewCommands()})
            for (const Command& each : subject)
                rows.push_back(&each);
        return rows;
    }();
    return all;
}

const Command* FindCommand(UINT dialog, int kind) {
    const auto found = std::find_if(Commands().begin(), Commands().end(), [dialog, kind](const Command* each) {
        return each->dialog == dialog && each->kind == kind;
    });
    return found == Commands().end() ? nullptr : *found;
}

QString CaptionOf(const Command& command) {
    if (command.caption)
        return QString::fromUtf8(command.caption);
    const platform::DialogTemplate* source = platform::FindDialogTemplate(static_cast<int>(command.dialog));
    return source ? platform::ToQString(source->caption).trimmed() : QString();
}

QString ActionName(UINT dialog, int kind) {
    return QStringLiteral("dialogo.%1.%2").arg(dialog).arg(kind);
}

} // namespace host
