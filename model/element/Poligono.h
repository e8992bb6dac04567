// A plane polygon through nodes. One that is built for a command stands beside the model: its nodes do not list it.
#pragma once

#include "model/element/ElementoSpecifiche.h"

#include <vector>

class CPoligono : public CElementoSpecifiche {
    DECLARE_DYNCREATE(CPoligono)

    using CElemento::Select;
    using CElementoSpecifiche::operator=;

    CPoligono();
    CPoligono(const CPoligono&) = delete;
    ~CPoligono() override;
    CPoligono& operator=(const CPoligono& altro) {
        operator=(Source(altro));
        return *this;
    }

    // Areas in the units of the document; 0 and a zero area for fewer than three vertices. The vertices go round the
    // polygon in order, which may be concave.
    virtual int GetArea(CGrandezza& area);
    virtual int GetAreaView(CGrandezza& area); // as large as it is shown: the polygon's own area when visible, else 0
    // The share of a node: of the area, what is nearer to it along the sides (corner, side middles, centre).
    virtual int GetAreaNodo(CNodo* pNodo, CGrandezza& area);
    virtual int GetAreaNodo(int i, CGrandezza& area);
    // Local axes 1, 2 and 3 (the normal) and the polygon's centre, three coordinates each. 0 for a degenerate polygon.
    virtual int GetVersoriLocali(double& x1, double& y1, double& z1, double& x2, double& y2, double& z2, double& x3,
                                 double& y3, double& z3, double& xc, double& yc, double& zc);
    virtual int SetVertice(CNodo* pNodo, int i); // 0 for null or an index outside
    virtual int SetIDVertice(int id, int i);     // of a vertex that is to be linked later
    virtual int AggiungiVertice(int id);         // a vertex to be linked later
    virtual int AggiungiVertice(CNodo* pNodo);   // 0 for null or a node that is a vertex already
    virtual int EliminaVertice(int i);
    virtual int GetIDVertice(int i);       // 0 outside
    virtual CNodo* GetVertice(int i);      // null outside, or while not linked
    virtual int GetIndexVertice(int id);   // position of the node with that identifier; -1 when it is no vertex
    virtual void AggiornaID();             // takes the identifiers from the nodes again
    virtual int GetDir2(CFPoint& versore); // local axis 2
    virtual int GetNodoMedio(CFPoint& punto, int lato); // middle of the side that starts at vertex `lato`
    // Leaves, and enters again, its nodes' lists while it is out of the model; the nodes stay known meanwhile.
    virtual void StaccaNodi();
    virtual void LinkNodes();

    // Largest distance of a vertex from the mean plane, length; 0 for a degenerate polygon.
    double GetOutOfPlane();
    CFPoint GetCentro(); // mean of the vertices

    // Everything but the vertices.
    CElemento& operator=(CElemento& altro) override;
    int CanDraw(Adv3d* pVista) override;
    void Draw(Adv3d* pVista) override;
    int IsInRect(CPoint a, CPoint b, Adv3d* pVista) override;
    int PtIn(CPoint punto, Adv3d* pVista) override;
    void UpdateInvalideRect(Adv3dRect* pRect, int margine) override;
    double GetProfonditaVista(Adv3d* pVista) override;
    int GetSizeFaccie(Adv3d* pVista) override;
    int SetFacesArray(FaceElemento** ppFaccia, Adv3d* pVista, Adv3dRect* pRect) override;
    int CheckElemento(CStringArray& messaggi) override;
    int GetDir(CFPoint& versore, int asse) override;
    int GetSize() override { return static_cast<int>(m_vertices.size()); }
    CNodo* GetIndexNodo(int i) override { return GetVertice(i); }
    int IsInRange(CFPoint da, CFPoint a) override;
    int IsParallelo(CFPoint direzione) override;
    int UpdateVertex(CObject* pVecchio, CObject* pNuovo) override;
    int UpdateVertexID(int vecchio, int nuovo, CElemento* pNodo) override;
    void DrawInfo(Adv3d* pVista) override;
    int GetDrawFaces() override { return 1; }

  protected:
    explicit CPoligono(unsigned tipo) : CElementoSpecifiche(tipo) {}

    // Twice the area as a vector along the normal; null for a degenerate polygon.
    CFPoint AreaVector();
    virtual bool EntersNodes() const { return false; }

  private:
    struct Vertex {
        CNodo* node; // not owned; null until linked
        int id;
    };
    bool Complete(); // at least three vertices, all linked
    void Release(CNodo* nodo);

    std::vector<Vertex> m_vertices;
};
