// A node: a point, the elements that meet there, and what holds it.
#pragma once

#include "model/element/ElementList.h"
#include "model/element/ElementoCarico.h"
#include "model/element/Molla.h"
#include "model/element/Vincolo.h"
#include "model/result/ElementoRisultati.h"

#include <vector>

class NodeGrid;

class CNodo : public CElementoCarico {
    DECLARE_DYNCREATE(CNodo)

    using CElemento::Select;

    CNodo();
    explicit CNodo(CFPoint punto) : CNodo() { m_point = punto; }
    CNodo(const CNodo&) = delete;
    // Elements that still meet here lose the node; a grid that holds it forgets it.
    ~CNodo() override;
    CNodo& operator=(const CNodo& altro) {
        operator=(Source(altro));
        return *this;
    }
    // Coordinates, restraint, springs, loads and groups; not the elements nor the reactions.
    CElemento& operator=(CElemento& altro) override;

    // The coordinates, for reading. To move a node use SetPoint, which keeps the search by position right.
    CFPoint* GetPunto() { return &m_point; }
    void SetPoint(CFPoint punto);

    // The elements that meet here, in no lasting order; lines and polygons enter and leave by themselves.
    int GetSizeElementi() const { return m_elements.Size(); }
    CElemento* GetIndexElemento(int i) const { return m_elements.At(i); } // null for an index outside
    void AddElemento(CElemento* pElemento) { m_elements.Add(pElemento); }
    void ForgetElement(CElemento* pElemento) { m_elements.Remove(pElemento); }

    CVincolo* GetVincolo();                      // null without one; owned by the node
    void SetRestraint(const CVincolo* pVincolo); // copied; null, or one that fixes nothing, takes it away
    int GetSizeMolle();
    CMolla*
    GetIndexMolla(int i); // null for an index outside; owned by the node, good until springs are added or removed
    int AddSpring(const CMolla& molla); // copied; its index
    void RemoveSprings();
    // Null without valid results or restraint; owned by the node.
    CNodoReazioniVincolari* GetReazioniVincolari();
    void SetReactions(const CNodoReazioniVincolari* pReazioni); // copied; null takes them away

    // Some other node at the same place, give or take `tolleranza`; null when there is none or no grid holds the node.
    CNodo* GetCoincident(double tolleranza);
    static constexpr double coincidenceTolerance = 1e-5; // metres

    int CanDraw(Adv3d* pVista) override;
    void Draw(Adv3d* pVista) override;
    void DrawInformazioni(Adv3d* pVista) override;
    int IsInRect(CPoint a, CPoint b, Adv3d* pVista) override;
    int PtIn(CPoint punto, Adv3d* pVista) override;
    void UpdateInvalideRect(Adv3dRect* pRect, int margine) override;
    double GetProfonditaVista(Adv3d* pVista) override;
    int AssegnaAttributi(CElemento* pElemento) override; // restraint and springs
    int CheckElemento(CStringArray& messaggi) override;
    int GetSize() override { return 1; }
    CNodo* GetIndexNodo(int i) override { return i == 0 ? this : nullptr; }
    int IsInRange(CFPoint da, CFPoint a) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    void DrawInfo(Adv3d* pVista) override;
    void DrawVincolo(Adv3d* pVista) override;
    void DrawMolle(Adv3d* pVista) override;
    int GetTextInfo(CString& testo) override;

  private:
    friend class NodeGrid;
    struct Support {
        CVincolo restraint;
        bool restrained = false;
        bool reacting = false;
        CNodoReazioniVincolari reactions;
        std::vector<CMolla> springs;
    };
    Support& MakeSupport();

    CFPoint m_point;
    ElementList m_elements;
    std::unique_ptr<Support> m_support; // null for the many nodes that nothing holds
    NodeGrid* m_grid = nullptr;         // not owned
    unsigned m_gridSlot = 0;
};
