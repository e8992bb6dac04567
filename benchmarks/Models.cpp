#include "benchmarks/Models.h"

#include "host/document/HostDocument.h"
#include "model/Materiale.h"
#include "model/Nodo.h"
#include "model/Sezione.h"
#include "model/Trave.h"

#include <cmath>

namespace bench {

namespace {

template <class T>
T* append(DocumentData& data, Kind kind, std::unique_ptr<T> object) {
    T* raw = object.get();
    raw->SetID(data.NextId(kind));
    std::unique_ptr<CElemento> owned = std::move(object);
    data.Append(owned);
    return raw;
}

} // namespace

DocumentData makeGrid(int nodes) {
    DocumentData data;
    CMateriale* material = append(data, Kind::Material, std::make_unique<CMateriale>());
    CSezione* section = append(data, Kind::Section, std::make_unique<CSezione>());
    const int side = static_cast<int>(std::ceil(std::cbrt(nodes)));
    CNodo* previous = nullptr;
    for (int i = 0; i < nodes; ++i) {
        auto node = std::make_unique<CNodo>();
        *node->GetPunto() = CFPoint(i % side, i / side % side, i / side / side);
        CNodo* made = append(data, Kind::Node, std::move(node));
        if (i % side != 0) {
            auto beam = std::make_unique<CTrave>();
            beam->SetNodi(previous, made);
            beam->SetMateriale(material->GetID(), material);
            beam->SetSezione(section->GetID(), section);
            append(data, Kind::Beam, std::move(beam));
        }
        previous = made;
    }
    return data;
}

void fillGrid(HostDocument& document, int nodes) {
    document.Replace(makeGrid(nodes));
}

} // namespace bench
