// The commands of the document that make nodes and elements; see DocumentGeneration.
#pragma once

#include "host/document/HostEditing.h"

namespace host {

class HostGeneration : public HostEditing {
  public:
    // All of them return 0 and change nothing for fewer than one node, more than a million, numbers that are not
    // finite, and points that coincide within the tolerance of the document where they must differ. A place where a
    // node lies already gets no second one. Each call is one undo step.
    //
    // The first node is at `inizio`; a negative `passo` leads away from `direzione`. It must exceed the tolerance.
    int GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) override;
    // `nNodi` of them strictly between the two points, equally spaced, and one at each point where none lies yet.
    int GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) override;
    // Degrees, positive from the first axis of the plane towards its second (X to Y, X to Z, Y to Z); the plane is
    // turned by `inclinazione` about its first axis.
    // Through three points: nNodi nodes between the ends, equally spaced from p1 over p2 to p3, and the ends where no
    // node stands. The points give the plane; `piano` is not used.
    int GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) override;
    // nNodi nodes after the start, which itself gets none, the last one at the angle: one less for a full turn, which
    // ends at the start. The start turns about the axis through the centre, in its own plane where it lies outside.
    int GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                           int nNodi) override;
    // The first node lies on the plane's first axis.
    int GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) override;
    // Walls with four nodes, or three where two corners are one, numbered row by row along the first side; of what
    // stands there already none is made again. A user who breaks it off gets everything back. A refusal says why.
    int Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) override;

    // A node that lies there within the tolerance of the document is returned instead of a second one. With a flag of 0
    // the node is made all the same.
    CNodo* AddNodo(CFPoint& punto, CView* pView, int flag) override;
    // Null for unknown or equal nodes. A second element between the same nodes is made: the check reports it.
    CTrave* AddTrave(int idNodo1, int idNodo2, CView* pView) override;
    CAsta* AddAsta(int idNodo1, int idNodo2, CView* pView) override;
    CNodo* GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) override;

    // Null for fewer than three nodes, unknown or repeated ones.
    CSetto* AddSetto(const std::vector<int>& idNodi);
    CSolaio* AddSolaio(const std::vector<int>& idNodi);

  protected:
    using HostEditing::HostEditing;

  private:
    int GenerateNodes(const std::vector<CFPoint>& places);
};

} // namespace host
