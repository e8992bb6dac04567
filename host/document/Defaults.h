// What new elements have, so that a simple model needs no assigning: the first material, section and thickness of the
// document, where there are any.
#pragma once

class CLineaFisica;
class CPoligonoFisico;

namespace host {

class HostLists;

void GiveDefaults(HostLists& document, CLineaFisica& line);
void GiveDefaults(HostLists& document, CPoligonoFisico& polygon);

} // namespace host
