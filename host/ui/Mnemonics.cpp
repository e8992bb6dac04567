#include "host/ui/Mnemonics.h"

#include <QAction>
#include <QMenu>
#include <QString>

#include <map>
#include <set>
#include <vector>

namespace host {

namespace {

QChar MnemonicOf(const QString& text) {
    const auto at = text.indexOf('&');
    return at < 0 || at + 1 == text.size() ? QChar() : text[at + 1].toLower();
}

// The places in the text whose letters may be its mnemonic, words' first ones before others.
std::vector<qsizetype> Candidates(const QString& text, const QString& taken) {
    std::vector<qsizetype> places;
    for (const bool first : {true, false})
        for (qsizetype i = 0; i < text.size(); ++i)
            if (first == (i == 0 || text[i - 1] == ' ') && text[i].isLetterOrNumber() &&
                !taken.contains(text[i].toLower()))
                places.push_back(i);
    return places;
}

// Gives each command without a mnemonic a letter of its own; one that finds all of its letters taken moves another on.
class Mnemonics {
  public:
    explicit Mnemonics(QMenu& menu) {
        QString taken;
        for (const QAction* each : menu.actions())
            taken += MnemonicOf(each->text());
        for (QAction* each : menu.actions())
            if (!each->isSeparator() && MnemonicOf(each->text()).isNull())
                m_open.push_back({each, Candidates(each->text(), taken)});
        for (std::size_t i = 0; i < m_open.size(); ++i) {
            std::set<QChar> tried;
            Place(i, tried);
        }
        for (const auto& [letter, who] : m_given) {
            const QString text = m_open[who.index].action->text();
            m_open[who.index].action->setText(QString(text).insert(who.place, '&'));
        }
    }

  private:
    struct Open {
        QAction* action;
        std::vector<qsizetype> places;
    };
    struct Given {
        std::size_t index; // into m_open
        qsizetype place;
    };

    bool Place(std::size_t index, std::set<QChar>& tried) {
        const auto letterAt = [&](qsizetype place) { return m_open[index].action->text()[place].toLower(); };
        for (const qsizetype place : m_open[index].places)
            if (m_given.try_emplace(letterAt(place), Given{index, place}).second)
                return true;
        for (const qsizetype place : m_open[index].places) {
            const QChar letter = letterAt(place);
            if (tried.insert(letter).second && Place(m_given.at(letter).index, tried)) {
                m_given[letter] = {index, place};
                return true;
            }
        }
        return false;
    }

    std::vector<Open> m_open;
    std::map<QChar, Given> m_given;
};

} // namespace

void GiveMnemonics(QMenu& menu) {
    const Mnemonics given(menu);
    for (QAction* each : menu.actions())
        if (each->menu())
            GiveMnemonics(*each->menu());
}

} // namespace host
