// Load cases, combinations and groups for the recording document, and the names that nobody may bear.
#pragma once

#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "platform/window/Dialog.h"
#include "tests/support/DialogTest.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

template <class T>
T& AddNamed(std::vector<std::unique_ptr<T>>& list, int id, const std::string& name) {
    list.push_back(std::make_unique<T>());
    list.back()->SetID(id);
    list.back()->SetNome(CString::FromUtf8(name));
    return *list.back();
}

inline CCombinazione& AddCombination(RecordingDoc& doc, int id, const std::string& name,
                                     const std::vector<std::pair<int, double>>& factors = {}) {
    CCombinazione& combination = AddNamed(doc.combinazioni, id, name);
    for (const auto& [loadCase, factor] : factors)
        combination.AddCDC(loadCase, factor);
    return combination;
}

// A modal dialog that has ended is hidden at once and destroyed when its loop is left.
inline bool IsShown(const DialogDriver& driver) {
    return driver.IsOpen() && driver.Visible(IDCANCEL);
}

// Buttons as a line of 0 and 1.
inline std::string EnabledLine(const DialogDriver& driver, const std::vector<int>& ids) {
    std::string line;
    for (const int id : ids)
        line += driver.Enabled(id) ? '1' : '0';
    return line;
}

class ModalTest : public DialogTest {
  protected:
    // Runs the dialog, cancels it after the action unless that closed it, and gives its result.
    int Run(CDialog& dialog, const std::function<void(DialogDriver&)>& action) {
        m_user.WhenDialogOpens([action](DialogDriver& driver) {
            action(driver);
            if (IsShown(driver))
                driver.Click(IDCANCEL);
        });
        return dialog.DoModal();
    }
};

// The pairs of a combination.
inline std::vector<std::pair<int, double>> FactorsOf(const CCombinazione& combination) {
    std::vector<std::pair<int, double>> factors;
    for (int pos = 0; pos < combination.GetSizeCDC(); ++pos) {
        double factor = 0;
        combination.GetFattoreCDC(pos, factor);
        factors.emplace_back(combination.GetIDCDC(pos), factor);
    }
    return factors;
}

// One for each clause of the rule; the longest valid name has 64 characters, however many bytes they take elsewhere.
inline const std::vector<std::string> invalidNames = {" Neve", "a.b", "a`b", "a!b", "a[b", "a]b", std::string(65, 'a')};

inline std::string LongestName() {
    std::string name;
    for (int i = 0; i < 64; ++i)
        name += "è";
    return name;
}
