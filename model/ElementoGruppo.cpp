#include "model/ElementoGruppo.h"

#include "model/DatiElemento.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CElementoGruppo, CElemento)
IMPLEMENT_DYNAMIC(CElementoVista, CElementoGruppo)

namespace {

// An element is in a handful of groups and views: these lists are walked.
int position(const std::vector<int>& list, int id) {
    const auto found = std::find(list.begin(), list.end(), id);
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

int add(std::vector<int>& list, int id) {
    if (position(list, id) >= 0)
        return 0;
    list.push_back(id);
    return 1;
}

int at(const std::vector<int>& list, int i) {
    return i >= 0 && i < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(i)] : 0;
}

} // namespace

int CElementoGruppo::AddGruppo(int id) {
    return add(makeData().groups, id);
}

int CElementoGruppo::EliminaGruppo(int id) {
    return data() && std::erase(data()->groups, id) > 0;
}

int CElementoGruppo::GetIndexGruppo(int id) {
    return data() ? position(data()->groups, id) : -1;
}

int CElementoGruppo::GetIDGruppo(int i) {
    return data() ? at(data()->groups, i) : 0;
}

int CElementoGruppo::IsGruppo(int id) {
    return GetIndexGruppo(id) >= 0;
}

int CElementoGruppo::GetSizeGruppi() {
    return data() ? static_cast<int>(data()->groups.size()) : 0;
}

CElemento& CElementoGruppo::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElemento::operator=(altro);
    const auto* other = DYNAMIC_DOWNCAST(CElementoGruppo, &altro);
    if (other && (other->data() || data()))
        makeData().groups = other->data() ? other->data()->groups : std::vector<int>();
    return *this;
}

int CElementoVista::AddVista(int id) {
    return add(makeData().views, id);
}

int CElementoVista::EliminaVista(int id) {
    return data() && std::erase(data()->views, id) > 0;
}

int CElementoVista::GetIndexVista(int i) {
    return data() ? at(data()->views, i) : 0;
}

int CElementoVista::IsVista(int id) {
    return data() && position(data()->views, id) >= 0;
}

int CElementoVista::GetSizeViste() {
    return data() ? static_cast<int>(data()->views.size()) : 0;
}

CElemento& CElementoVista::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoGruppo::operator=(altro);
    const auto* other = DYNAMIC_DOWNCAST(CElementoVista, &altro);
    if (other && (other->data() || data()))
        makeData().views = other->data() ? other->data()->views : std::vector<int>();
    return *this;
}
