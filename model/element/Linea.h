// A line element: two nodes.
#pragma once

#include "model/element/ElementoSpecifiche.h"

class CLinea : public CElementoSpecifiche {
    DECLARE_DYNAMIC(CLinea)

    using CElemento::Select;

    CLinea(const CLinea&) = delete;
    ~CLinea() override;

    virtual double GetLunghezzaLinea(); // 0 while a node is missing
    virtual CNodo* GetNodoIniziale();   // null while the line has none, as in a copy made by CopyOf
    virtual CNodo* GetNodoFinale();
    virtual int GetIDNodoIniziale(); // the node's; without a node, that of the one it had, 0 for none
    virtual int GetIDNodoFinale();
    // Replaces the two nodes, leaving the lists of the old ones and entering those of the new; null is "none". Returns
    // non-zero when both are given and differ.
    virtual int SetNodi(CNodo* nodo1, CNodo* nodo2);
    // Names the nodes that Relink will link; the line lets go of those that it has.
    void SetIDNodi(int id1, int id2);
    // Leaves, and enters again, its nodes' lists while it is out of the model; the nodes stay known meanwhile.
    virtual void StaccaNodi();
    virtual void LinkNodes();

    // Local axes: 1 from the first node to the second; 2 horizontal and 3 upwards for a line that is not vertical; for
    // a vertical one 2 is the world's Y. Beta turns 2 towards 3. 0 while the line has no length.
    int GetLocalAxes(CFPoint& asse1, CFPoint& asse2, CFPoint& asse3);
    static int _GetLocalAxes(CFPoint da, CFPoint a, double betaGradi, CFPoint& asse1, CFPoint& asse2, CFPoint& asse3);

    // Everything but the nodes.
    CElemento& operator=(CElemento& altro) override;
    CLinea& operator=(CLinea& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }
    int CanDraw(Adv3d* pVista) override;
    void Draw(Adv3d* pVista) override;
    int IsInRect(CPoint a, CPoint b, Adv3d* pVista) override;
    int PtIn(CPoint punto, Adv3d* pVista) override;
    void UpdateInvalideRect(Adv3dRect* pRect, int margine) override;
    double GetProfonditaVista(Adv3d* pVista) override;
    int CheckElemento(CStringArray& messaggi) override;
    int GetDir(CFPoint& versore, int asse) override;
    int GetSize() override { return 2; }
    CNodo* GetIndexNodo(int i) override;
    int IsInRange(CFPoint da, CFPoint a) override;
    int IsParallelo(CFPoint direzione) override;
    int UpdateVertex(CObject* pVecchio, CObject* pNuovo) override;
    int UpdateVertexID(int vecchio, int nuovo, CElemento* pNodo) override;
    void DrawInfo(Adv3d* pVista) override;
    void DrawSpecifiche(Adv3d* pVista) override;
    void DrawInformazioni(Adv3d* pVista) override;

  protected:
    explicit CLinea(unsigned tipo) : CElementoSpecifiche(tipo) {}

    virtual double BetaDegrees() { return 0; }

  private:
    void SetNode(int i, CNodo* nodo);

    CNodo* m_pNodi[2] = {}; // not owned
    int m_nIDNodi[2] = {};  // of the nodes when they were set
};
