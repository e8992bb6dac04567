#include "model/element/Copy.h"

#include "model/element/Linea.h"
#include "model/element/LineaFisica.h"
#include "model/element/Nodo.h"
#include "model/element/Poligono.h"
#include "model/element/PoligonoFisico.h"
#include "model/entity/ElementoStrutturale.h"

namespace {

// Takes the pointers out and leaves the identifiers.
void Unlink(CElemento& elemento) {
    CObject* const object = &elemento;
    if (auto* carrier = DYNAMIC_DOWNCAST(CElementoCarico, object))
        for (int i = 0; i < carrier->GetSizeCarichi(); ++i)
            carrier->AggiornaIndexCarico(i, nullptr);
    if (auto* line = DYNAMIC_DOWNCAST(CLineaFisica, object)) {
        line->SetMateriale(line->GetIDMateriale(), nullptr);
        line->SetSezione(line->GetIDSezione(), nullptr);
    }
    if (auto* polygon = DYNAMIC_DOWNCAST(CPoligonoFisico, object)) {
        polygon->SetMateriale(polygon->GetIDMateriale(), nullptr);
        polygon->SetThickness(polygon->GetIDSpessore(), nullptr);
    }
}

void CopyNodeIds(CElemento& from, CElemento& to) {
    auto* line = DYNAMIC_DOWNCAST(CLinea, static_cast<CObject*>(&from));
    auto* lineCopy = DYNAMIC_DOWNCAST(CLinea, static_cast<CObject*>(&to));
    if (line && lineCopy)
        lineCopy->SetIDNodi(line->GetIDNodoIniziale(), line->GetIDNodoFinale());
    auto* polygon = DYNAMIC_DOWNCAST(CPoligono, static_cast<CObject*>(&from));
    auto* polygonCopy = DYNAMIC_DOWNCAST(CPoligono, static_cast<CObject*>(&to));
    if (!polygon || !polygonCopy)
        return;
    while (polygonCopy->GetSize() > 0)
        polygonCopy->EliminaVertice(polygonCopy->GetSize() - 1);
    for (int i = 0; i < polygon->GetSize(); ++i)
        polygonCopy->AggiungiVertice(polygon->GetIDVertice(i));
}

int LinkLoads(CElementoCarico& carrier, ModelLookup& modello) {
    int found = 1;
    for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
        CCarico* const load = modello.FindLoad(carrier.GetIndexIDCasoCarico(i), carrier.GetIndexIDCarico(i));
        carrier.AggiornaIndexCarico(i, load);
        found = found && load;
    }
    return found;
}

int LinkLine(CLinea& line, ModelLookup& modello) {
    const int ids[] = {line.GetIDNodoIniziale(), line.GetIDNodoFinale()};
    CNodo* const nodes[] = {modello.FindNode(ids[0]), modello.FindNode(ids[1])};
    if (!nodes[0] || !nodes[1]) {
        line.SetIDNodi(ids[0], ids[1]); // half a line would draw and check as a whole one
        return 0;
    }
    line.SetNodi(nodes[0], nodes[1]);
    return 1;
}

int LinkPolygon(CPoligono& polygon, ModelLookup& modello) {
    int found = 1;
    for (int i = 0; i < polygon.GetSize(); ++i) {
        const int id = polygon.GetIDVertice(i);
        CNodo* const node = modello.FindNode(id);
        if (node)
            polygon.SetVertice(node, i);
        else
            found = polygon.SetIDVertice(id, i) && false;
    }
    return found;
}

template <typename T>
bool Missing(int id, T* object) {
    return id != 0 && !object;
}

} // namespace

std::unique_ptr<CElemento> CopyOf(CElemento& elemento) {
    std::unique_ptr<CElemento> copy(static_cast<CElemento*>(elemento.GetRuntimeClass()->CreateObject()));
    if (!copy)
        return nullptr;
    *copy = elemento;
    copy->SetID(elemento.GetID());
    copy->SetTipoElemento(elemento.GetTipoElemento());
    copy->SetSelect(elemento.IsSelect());
    copy->SetSettings(nullptr);
    Unlink(*copy);
    CopyNodeIds(elemento, *copy);
    return copy;
}

namespace {

bool SameLoads(CElementoCarico& a, CElementoCarico& b) {
    if (a.GetSizeCarichi() != b.GetSizeCarichi())
        return false;
    for (int i = 0; i < a.GetSizeCarichi(); ++i)
        if (a.GetIndexIDCasoCarico(i) != b.GetIndexIDCasoCarico(i) || a.GetIndexIDCarico(i) != b.GetIndexIDCarico(i))
            return false;
    return true;
}

bool SameLine(CLineaFisica& a, CLineaFisica& b) {
    return HasNodesOf(a, b) && a.GetIDMateriale() == b.GetIDMateriale() && a.GetIDSezione() == b.GetIDSezione() &&
           a.GetBeta() == b.GetBeta();
}

bool SamePolygon(CPoligonoFisico& a, CPoligonoFisico& b) {
    return a.GetIDMateriale() == b.GetIDMateriale() && a.GetIDSpessore() == b.GetIDSpessore();
}

} // namespace

bool HasNodesOf(CElemento& elemento, CElemento& copia) {
    auto* line = DYNAMIC_DOWNCAST(CLinea, static_cast<CObject*>(&elemento));
    auto* copy = DYNAMIC_DOWNCAST(CLinea, static_cast<CObject*>(&copia));
    return !line || !copy ||
           (line->GetIDNodoIniziale() == copy->GetIDNodoIniziale() &&
            line->GetIDNodoFinale() == copy->GetIDNodoFinale());
}

bool IsAsCopied(CElemento& elemento, CElemento& copia) {
    CObject* const a = &elemento;
    CObject* const b = &copia;
    if (elemento.GetID() != copia.GetID() || elemento.GetIDRck() != copia.GetIDRck())
        return false;
    if (auto* entity = DYNAMIC_DOWNCAST(CElementoStrutturale, a))
        return *entity == static_cast<CElementoStrutturale&>(*b);
    auto* carrier = DYNAMIC_DOWNCAST(CElementoCarico, a);
    if (carrier && !SameLoads(*carrier, static_cast<CElementoCarico&>(*b)))
        return false;
    if (auto* line = DYNAMIC_DOWNCAST(CLineaFisica, a))
        return SameLine(*line, static_cast<CLineaFisica&>(*b));
    auto* polygon = DYNAMIC_DOWNCAST(CPoligonoFisico, a);
    return !polygon || SamePolygon(*polygon, static_cast<CPoligonoFisico&>(*b));
}

int Relink(CElemento& elemento, ModelLookup& modello) {
    CObject* const object = &elemento;
    int found = 1;
    if (auto* carrier = DYNAMIC_DOWNCAST(CElementoCarico, object))
        found = LinkLoads(*carrier, modello) && found;
    if (auto* line = DYNAMIC_DOWNCAST(CLinea, object))
        found = LinkLine(*line, modello) && found;
    if (auto* polygon = DYNAMIC_DOWNCAST(CPoligono, object))
        found = LinkPolygon(*polygon, modello) && found;
    if (auto* line = DYNAMIC_DOWNCAST(CLineaFisica, object)) {
        line->SetMateriale(line->GetIDMateriale(), modello.FindMaterial(line->GetIDMateriale()));
        line->SetSezione(line->GetIDSezione(), modello.FindSection(line->GetIDSezione()));
        found = found && !Missing(line->GetIDMateriale(), line->GetMateriale()) &&
                !Missing(line->GetIDSezione(), line->GetSezione());
    }
    if (auto* polygon = DYNAMIC_DOWNCAST(CPoligonoFisico, object)) {
        polygon->SetMateriale(polygon->GetIDMateriale(), modello.FindMaterial(polygon->GetIDMateriale()));
        polygon->SetThickness(polygon->GetIDSpessore(), modello.FindThickness(polygon->GetIDSpessore()));
        found = found && !Missing(polygon->GetIDMateriale(), polygon->GetMateriale()) &&
                !Missing(polygon->GetIDSpessore(), polygon->GetThickness());
    }
    return found;
}

int RestoreState(CElemento& elemento, CElemento& copia, ModelLookup& modello) {
    elemento = copia;
    elemento.SetID(copia.GetID());
    elemento.SetSelect(copia.IsSelect());
    CopyNodeIds(copia, elemento);
    return Relink(elemento, modello);
}
