#include "model/element/Solaio.h"

#include "model/element/TipoElemento.h"

IMPLEMENT_DYNCREATE(CSolaio, CPoligonoFisico)

CSolaio::CSolaio() : CPoligonoFisico(TipoElemento::Solaio) {
}

int CSolaio::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    if (AreaVector().GetMod() == 0)
        messaggi.Add("Il solaio è degenere: i suoi nodi non formano una superficie."_t);
    CPoligonoFisico::CheckElemento(messaggi);
    return messaggi.GetSize() == before;
}
