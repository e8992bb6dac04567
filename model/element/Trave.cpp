#include "model/element/Trave.h"

#include "model/element/Specifiche.h"
#include "model/element/TipoElemento.h"

IMPLEMENT_DYNCREATE(CTrave, CLineaRisultati)

CTrave::CTrave() : CLineaRisultati(TipoElemento::Trave) {
}

unsigned CTrave::GetReleases(int estremo) {
    unsigned released = 0;
    for (int i = 0; i < GetSizeSpecifiche(); ++i) {
        const auto* release = DYNAMIC_DOWNCAST(CSpecificheSvincoliTrave, static_cast<CObject*>(GetIndexSpecifica(i)));
        if (!release || (release->GetEnd() != 0) != (estremo != 0))
            continue;
        for (int flag = 0; flag < 4; ++flag)
            released |= release->GetRelease(flag) ? 1u << flag : 0u;
    }
    return released;
}
