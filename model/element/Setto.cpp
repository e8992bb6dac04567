#include "model/element/Setto.h"

#include "model/element/TipoElemento.h"

#include <cmath>

IMPLEMENT_DYNCREATE(CSetto, CPoligonoFisico)

CSetto::CSetto() : CPoligonoFisico(TipoElemento::Setto) {
}

// Of the square root of the area: a wall that is further out of its plane than this is warped, not rounded.
constexpr double warped = 1e-3;

int CSetto::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    const double area = AreaVector().GetMod() / 2;
    if (area == 0)
        messaggi.Add("Il setto ha area nulla.");
    else if (GetOutOfPlane() > warped * std::sqrt(area))
        messaggi.Add("Il setto non è piano."_t);
    if (GetSize() != 3 && GetSize() != 4)
        messaggi.Add("Il setto non ha 3 o 4 nodi.");
    CPoligonoFisico::CheckElemento(messaggi);
    return messaggi.GetSize() == before;
}
