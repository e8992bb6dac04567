// Which loads of a case elements carry, and removing those that none does any more.
#pragma once

#include <unordered_set>

class CCasoCarico;
class CElementoCarico;

namespace host {

class HostEditing;

using LoadNumbers = std::unordered_set<int>;

LoadNumbers LoadsOf(CElementoCarico& carrier, int caseId);
// Takes the loads, which nothing refers to, from their case.
void DiscardLoads(HostEditing& document, CCasoCarico& loadCase, LoadNumbers numbers, const char* stepName);
// The same for those among the candidates that no element carries: one walk along the model, however many they are.
void DiscardUncarried(HostEditing& document, CCasoCarico& loadCase, LoadNumbers candidates, const char* stepName);

} // namespace host
