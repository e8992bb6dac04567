#include "host/document/NewModel.h"

#include "host/document/UnitChange.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

namespace host {

namespace {

template <class T>
T* Named(DocumentData& data, Kind kind, const char* name) {
    T* entity = data.AppendNew(kind, std::make_unique<T>());
    entity->SetNome(name);
    return entity;
}

} // namespace

DocumentData EmptyModel() {
    DocumentData data;
    data.CurrentCase() = Named<CCasoCarico>(data, Kind::LoadCase, "Caso 1")->GetID();
    return data;
}

DocumentData NewModel(DocumentUnits units) {
    DocumentData data = EmptyModel();
    AppendConcrete(data);
    AppendRectangle(data, "30x30", 0.30, 0.30);
    AppendThickness(data, "Spessore 20 cm", 0.20);
    ConvertUnits(data, units);
    return data;
}

CMateriale* AppendMaterial(DocumentData& data, const char* name, double young, double poisson, double density,
                           double alpha) {
    auto* material = Named<CMateriale>(data, Kind::Material, name);
    material->SetE(young);
    material->SetG(young / (2 * (1 + poisson)));
    material->SetPoisson(poisson);
    material->SetDensity(density);
    material->SetAlpha(alpha);
    return material;
}

CMateriale* AppendConcrete(DocumentData& data) {
    return AppendMaterial(data, "C25/30", 31'476'000, 0.2, 2.5, 1e-5);
}

CSezione* AppendRectangle(DocumentData& data, const char* name, double base, double height) {
    auto* section = Named<CSezione>(data, Kind::Section, name);
    section->SetRectangle(base, height);
    return section;
}

CSpessore* AppendThickness(DocumentData& data, const char* name, double thickness) {
    auto* entity = Named<CSpessore>(data, Kind::Thickness, name);
    entity->SetThickness(thickness);
    return entity;
}

} // namespace host
