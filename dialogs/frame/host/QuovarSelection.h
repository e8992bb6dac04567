// The selection of a document, as the dialogs use it. Lengths are in the document's length unit.
#pragma once

#include "model/values/FPoint.h"

class Adv3dRect;
class CNodo;
class CObArray;
class CObList;
class CPoligono;
class CView;

// How corresponding nodes of successive copies are joined.
inline constexpr int UNIONE_NIENTE = 0;
inline constexpr int UNIONE_TRAVI = 1;
inline constexpr int UNIONE_ASTE = 2;

class CQuovarSelection {
  public:
    virtual ~CQuovarSelection() = default;

    // Empties the selection; a null view means all views.
    virtual void Deseleziona(CView* pView) = 0;
    // Fills pNodi with every node connected to the seed through elements, the seed included.
    virtual void SelezionaStruttura(CNodo* seed, CObArray* pNodi) = 0;

    // Moves the selection; with nCopie > 0 copies it that many times instead, joined as `unione` says.
    virtual void TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) = 0;
    // Rotates about a global axis through the origin (0 X, 1 Y, 2 Z); copies as above.
    virtual void RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) = 0;
    // Rotates by an angle in degrees about the axis through two points; copies as above.
    virtual void RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi,
                                int nCopie, int unione) = 0;
    // Mirrors in the plane through (x, y, z) parallel to a coordinate plane (0 XY, 1 YZ, 2 XZ), or in the origin (3).
    virtual void SpecchiaSelezione(double x, double y, double z, int piano) = 0;

    // The copy cycle. The two lists and the counter are the caller's; the host alone reads and writes them between
    // the calls, except that the size of `oggetti` after the start is the number of objects that each copy makes.
    virtual void InizioCicloTraslaSelezione(Adv3dRect& rect, CObList& oggetti) = 0;
    // One copy, displaced from the copy before it (from the selected objects the first time).
    virtual void CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore,
                                      Adv3dRect& rect, CObList& oggetti, CObList& copie) = 0;
    virtual void FineCicloTraslaSelezione(Adv3dRect& rect, unsigned int contatore) = 0;

    // The polygons stay the caller's. Both may throw a CException by pointer.
    virtual void IntersezioneLineePiano(CPoligono* pPoligono) = 0;
    virtual void SelezionaElementiPiano(CPoligono* pPoligono) = 0;
    // Selects the objects of the flagged kinds that lie between the coordinates of the two points.
    virtual void SelezionaElementiRange(CFPoint da, CFPoint a, int nodi, int aste, int travi, int solai, int setti) = 0;
};
