#include "host/document/Properties.h"

#include "model/element/Nodo.h"
#include "model/element/PoligonoFisico.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

namespace host {

namespace {

void Add(CString& text, const char* what, const CElementoStrutturale* entity) {
    text.AppendFormat("\n%s: %s", what,
                      entity ? const_cast<CElementoStrutturale*>(entity)->GetNome() : CString("nessuno"));
}

CString Named(std::initializer_list<const char*> names, unsigned bits) {
    CString list;
    unsigned bit = 1;
    for (const char* name : names) {
        if (bits & bit)
            list += CString(list.IsEmpty() ? "" : " ") + name;
        bit <<= 1;
    }
    return list.IsEmpty() ? CString("nessuno") : list;
}

void AddOf(CString& text, CNodo& node) {
    const unsigned fixed = node.GetVincolo() ? node.GetVincolo()->GetMask() : 0;
    text.AppendFormat("\nVincoli: %s\nMolle: %d", Named({"Ux", "Uy", "Uz", "Rx", "Ry", "Rz"}, fixed),
                      node.GetSizeMolle());
}

void AddOf(CString& text, CLineaFisica& line) {
    Add(text, "Materiale", line.GetMateriale());
    Add(text, "Sezione", line.GetSezione());
    text.AppendFormat("\nLunghezza: %g %s\nAngolo beta: %g", line.GetLunghezzaLinea(),
                      CGrandezza::_GetStringLunghezza(line.GetLunghezza()), line.GetBeta());
    if (auto* beam = DYNAMIC_DOWNCAST(CTrave, &line))
        for (int end = 0; end < 2; ++end)
            text.AppendFormat("\nSvincoli al nodo %d: %s", end == 0 ? line.GetIDNodoIniziale() : line.GetIDNodoFinale(),
                              Named({"N", "T", "M2", "M3"}, beam->GetReleases(end)));
}

void AddOf(CString& text, CPoligonoFisico& polygon) {
    Add(text, "Materiale", polygon.GetMateriale());
    Add(text, "Spessore", polygon.GetThickness());
}

} // namespace

CString PropertiesOf(CElemento& element) {
    CString text;
    element.GetTextInfo(text);
    CObject* const object = &element;
    if (auto* node = DYNAMIC_DOWNCAST(CNodo, object))
        AddOf(text, *node);
    else if (auto* line = DYNAMIC_DOWNCAST(CLineaFisica, object))
        AddOf(text, *line);
    else if (auto* polygon = DYNAMIC_DOWNCAST(CPoligonoFisico, object))
        AddOf(text, *polygon);
    if (auto* carrier = DYNAMIC_DOWNCAST(CElementoCarico, object))
        text.AppendFormat("\nCarichi: %d", carrier->GetSizeCarichi());
    return text;
}

} // namespace host
