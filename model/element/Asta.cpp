#include "model/element/Asta.h"

#include "model/element/TipoElemento.h"

IMPLEMENT_DYNCREATE(CAsta, CLineaRisultati)

CAsta::CAsta() : CLineaRisultati(TipoElemento::Asta) {
}
