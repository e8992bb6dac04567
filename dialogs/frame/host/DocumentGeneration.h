// The part of the document that makes nodes and elements.
#pragma once

#include "model/values/FPoint.h"

class CAsta;
class CNodo;
class CTrave;
class CView;

// Points and lengths are in the document's length unit. 0 and null mean that the host rejects the parameters (no nodes,
// coincident points ...).
class DocumentGeneration {
  public:
    // Nodes from `inizio` towards `direzione`, `passo` apart.
    virtual int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) = 0;
    virtual int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) = 0;
    // `piano` is 1 for the X-Y plane, 2 for X-Z, 3 for Y-Z; angles are as the user typed them.
    virtual int GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) = 0;
    virtual int GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                                   int nNodi) = 0;
    virtual int GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) = 0;
    virtual int Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) = 0;
    virtual CNodo* AddNodo(CFPoint& punto, CView* pView, int flag) = 0;
    virtual CTrave* AddTrave(int idNodo1, int idNodo2, CView* pView) = 0;
    virtual CAsta* AddAsta(int idNodo1, int idNodo2, CView* pView) = 0;
    // The node within `tolleranza` of the point, other than pEscluso (null excludes nothing).
    virtual CNodo* GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) = 0;

  protected:
    ~DocumentGeneration() = default;
};
