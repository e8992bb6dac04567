#include "model/element/ElementoGruppo.h"

#include "model/element/ElementExtras.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CElementoGruppo, CElemento)
IMPLEMENT_DYNAMIC(CElementoVista, CElementoGruppo)

namespace {

// An element is in a handful of groups and views: these lists are walked.
int Position(const std::vector<int>& list, int id) {
    const auto found = std::find(list.begin(), list.end(), id);
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

int Add(std::vector<int>& list, int id) {
    if (Position(list, id) >= 0)
        return 0;
    list.push_back(id);
    return 1;
}

int At(const std::vector<int>& list, int i) {
    return i >= 0 && i < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(i)] : 0;
}

} // namespace

int CElementoGruppo::AddGruppo(int id) {
    return Add(MakeData().groups, id);
}

int CElementoGruppo::EliminaGruppo(int id) {
    return Data() && std::erase(Data()->groups, id) > 0;
}

int CElementoGruppo::GetIndexGruppo(int id) {
    return Data() ? Position(Data()->groups, id) : -1;
}

int CElementoGruppo::GetIDGruppo(int i) {
    return Data() ? At(Data()->groups, i) : 0;
}

int CElementoGruppo::IsGruppo(int id) {
    return GetIndexGruppo(id) >= 0;
}

int CElementoGruppo::GetSizeGruppi() {
    return Data() ? static_cast<int>(Data()->groups.size()) : 0;
}

void CElementoGruppo::RestoreGruppo(int i, int id) {
    std::vector<int>& groups = MakeData().groups;
    if (i >= 0 && i <= GetSizeGruppi() && !IsGruppo(id))
        groups.insert(groups.begin() + i, id);
}

CElemento& CElementoGruppo::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElemento::operator=(altro);
    const auto* other = DYNAMIC_DOWNCAST(CElementoGruppo, &altro);
    if (other && (other->Data() || Data()))
        MakeData().groups = other->Data() ? other->Data()->groups : std::vector<int>();
    return *this;
}

int CElementoVista::AddVista(int id) {
    return Add(MakeData().views, id);
}

int CElementoVista::EliminaVista(int id) {
    return Data() && std::erase(Data()->views, id) > 0;
}

int CElementoVista::GetIndexVista(int i) {
    return Data() ? At(Data()->views, i) : 0;
}

int CElementoVista::IsVista(int id) {
    return Data() && Position(Data()->views, id) >= 0;
}

CElemento& CElementoVista::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoGruppo::operator=(altro);
    const auto* other = DYNAMIC_DOWNCAST(CElementoVista, &altro);
    if (other && (other->Data() || Data()))
        MakeData().views = other->Data() ? other->Data()->views : std::vector<int>();
    return *this;
}
