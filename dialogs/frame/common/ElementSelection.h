// Selecting an object of the model by its kind: the document has one operation for each.
#pragma once

class Adv3dRect;
class CElemento;
class DocumentSelected;

enum class ElementKind { None, Node, Truss, Beam, Wall, Slab };

// None for what is of no kind that the user can select.
ElementKind KindOf(const CElemento& element);

// Adds the object with that identifier to the selection; None does nothing. rect is null or gathers the screen region
// to redraw, which nodes leave alone.
void SelectByKind(DocumentSelected& elements, ElementKind kind, int id, Adv3dRect* rect = nullptr);
