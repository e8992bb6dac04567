// Load cases, combinations and groups for the recording document, and a name that it refuses.
#pragma once

#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "tests/dialogs/ModalTest.h"

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

inline constexpr char invalidName[] = "a.b";
