// Copies of model objects for undo and for copy commands. A copy names everything else by identifier only: it holds no
// pointer into the model, so it outlives whatever the original referred to.
#pragma once

#include "model/element/Elemento.h"

#include <memory>

class CCarico;
class CMateriale;
class CSezione;
class CSpessore;

// Finds the objects of a document by identifier; null when there is none. The document implements it.
class ModelLookup {
  public:
    virtual ~ModelLookup() = default;
    virtual CNodo* FindNode(int id) = 0;
    virtual CMateriale* FindMaterial(int id) = 0;
    virtual CSezione* FindSection(int id) = 0;
    virtual CSpessore* FindThickness(int id) = 0;
    virtual CCarico* FindLoad(int idCasoCarico, int idCarico) = 0;
};

// A copy of the object's own class with the same identifier, selection and visibility, its nodes, loads, material,
// section and thickness by identifier. Null for a class that cannot be made by name.
std::unique_ptr<CElemento> CopyOf(CElemento& elemento);

// Whether the copy still tells what a dialog may have written directly: number, concrete class, nodes, loads, material,
// section, thickness, beta, name and type text.
bool IsAsCopied(CElemento& elemento, CElemento& copia);

// Whether a line has the nodes that its copy names; true for what is no line.
bool HasNodesOf(CElemento& elemento, CElemento& copia);

// Turns identifiers into pointers: nodes (which list the element from then on), loads, material, section, thickness.
// Returns 0 when something is missing; what was found is linked all the same.
int Relink(CElemento& elemento, ModelLookup& modello);

// Gives a living object everything that the copy holds, its identifier and nodes included, and links it.
int RestoreState(CElemento& elemento, CElemento& copia, ModelLookup& modello);
