#include "host/document/Defaults.h"

#include "host/document/HostLists.h"
#include "model/element/LineaFisica.h"
#include "model/element/PoligonoFisico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

namespace host {

void GiveDefaults(HostLists& document, CLineaFisica& line) {
    if (CMateriale* material = document.GetIndexMateriale(0))
        line.SetMateriale(material->GetID(), material);
    if (CSezione* section = document.GetIndexSezione(0))
        line.SetSezione(section->GetID(), section);
}

void GiveDefaults(HostLists& document, CPoligonoFisico& polygon) {
    if (CMateriale* material = document.GetIndexMateriale(0))
        polygon.SetMateriale(material->GetID(), material);
    if (CSpessore* thickness = document.GetIndexSpessore(0))
        polygon.SetThickness(thickness->GetID(), thickness);
}

} // namespace host
