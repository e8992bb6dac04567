#include "model/Copia.h"

#include "model/LineaFisica.h"
#include "model/Nodo.h"
#include "model/Poligono.h"

namespace {

// Takes the pointers out and leaves the identifiers.
void unlink(CElemento& elemento) {
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
        polygon->SetSpessore(polygon->GetIDSpessore(), nullptr);
    }
}

void copyNodeIds(CElemento& from, CElemento& to) {
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

int linkLoads(CElementoCarico& carrier, CercaModello& modello) {
    int found = 1;
    for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
        CCarico* const load = modello.CercaCarico(carrier.GetIndexIDCasoCarico(i), carrier.GetIndexIDCarico(i));
        carrier.AggiornaIndexCarico(i, load);
        found = found && load;
    }
    return found;
}

int linkLine(CLinea& line, CercaModello& modello) {
    const int ids[] = {line.GetIDNodoIniziale(), line.GetIDNodoFinale()};
    CNodo* const nodes[] = {modello.CercaNodo(ids[0]), modello.CercaNodo(ids[1])};
    if (!nodes[0] || !nodes[1]) {
        line.SetIDNodi(ids[0], ids[1]); // half a line would draw and check as a whole one
        return 0;
    }
    line.SetNodi(nodes[0], nodes[1]);
    return 1;
}

int linkPolygon(CPoligono& polygon, CercaModello& modello) {
    int found = 1;
    for (int i = 0; i < polygon.GetSize(); ++i) {
        const int id = polygon.GetIDVertice(i);
        CNodo* const node = modello.CercaNodo(id);
        if (node)
            polygon.SetVertice(node, i);
        else
            found = polygon.SetIDVertice(id, i) && false;
    }
    return found;
}

template <typename T>
bool missing(int id, T* object) {
    return id != 0 && !object;
}

} // namespace

std::unique_ptr<CElemento> CreaCopia(CElemento& elemento) {
    std::unique_ptr<CElemento> copy(static_cast<CElemento*>(elemento.GetRuntimeClass()->CreateObject()));
    if (!copy)
        return nullptr;
    *copy = elemento;
    copy->SetID(elemento.GetID());
    copy->SetTipoElemento(elemento.GetTipoElemento());
    copy->SetSelect(elemento.IsSelect());
    copy->SetSettings(nullptr);
    unlink(*copy);
    copyNodeIds(elemento, *copy);
    return copy;
}

int Ricollega(CElemento& elemento, CercaModello& modello) {
    CObject* const object = &elemento;
    int found = 1;
    if (auto* carrier = DYNAMIC_DOWNCAST(CElementoCarico, object))
        found = linkLoads(*carrier, modello) && found;
    if (auto* line = DYNAMIC_DOWNCAST(CLinea, object))
        found = linkLine(*line, modello) && found;
    if (auto* polygon = DYNAMIC_DOWNCAST(CPoligono, object))
        found = linkPolygon(*polygon, modello) && found;
    if (auto* line = DYNAMIC_DOWNCAST(CLineaFisica, object)) {
        line->SetMateriale(line->GetIDMateriale(), modello.CercaMateriale(line->GetIDMateriale()));
        line->SetSezione(line->GetIDSezione(), modello.CercaSezione(line->GetIDSezione()));
        found = found && !missing(line->GetIDMateriale(), line->GetMateriale()) &&
                !missing(line->GetIDSezione(), line->GetSezione());
    }
    if (auto* polygon = DYNAMIC_DOWNCAST(CPoligonoFisico, object)) {
        polygon->SetMateriale(polygon->GetIDMateriale(), modello.CercaMateriale(polygon->GetIDMateriale()));
        polygon->SetSpessore(polygon->GetIDSpessore(), modello.CercaSpessore(polygon->GetIDSpessore()));
        found = found && !missing(polygon->GetIDMateriale(), polygon->GetMateriale()) &&
                !missing(polygon->GetIDSpessore(), polygon->GetSpessore());
    }
    return found;
}

int RipristinaStato(CElemento& elemento, CElemento& copia, CercaModello& modello) {
    elemento = copia;
    elemento.SetID(copia.GetID());
    elemento.SetSelect(copia.IsSelect());
    copyNodeIds(copia, elemento);
    return Ricollega(elemento, modello);
}
