// What is selected in a document, in the order of selecting, and the commands that transform it.
#pragma once

#include "dialogs/frame/host/QuovarSelection.h"
#include "host/document/DocumentData.h"
#include "platform/core/Collections.h"

#include <array>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class CElemento;

namespace host {

class HostDocument;

class Copier;
class Motion;
struct CopyCycle;

class HostSelection : public CQuovarSelection {
  public:
    // The selection of a moment; shared by all who took it before it changed.
    using Snapshot = std::shared_ptr<const std::vector<CElemento*>>;

    explicit HostSelection(HostDocument& document);
    ~HostSelection() override;
    HostSelection(const HostSelection&) = delete;
    HostSelection& operator=(const HostSelection&) = delete;

    // ---- What the dialogs use; see CQuovarSelection.
    void Deseleziona(CView* pView) override;
    void SelezionaStruttura(CNodo* seed, CObArray* pNodi) override;
    void TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) override;
    void RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) override;
    void RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi, int nCopie,
                        int unione) override;
    void SpecchiaSelezione(double x, double y, double z, int piano) override;
    void InizioCicloTraslaSelezione(Adv3dRect& rect, CObList& oggetti) override;
    void CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore, Adv3dRect& rect,
                              CObList& oggetti, CObList& copie) override;
    void FineCicloTraslaSelezione(Adv3dRect& rect, unsigned int contatore) override;
    // Throws a CExceptionEx for a polygon that defines no plane.
    void IntersezioneLineePiano(CPoligono* pPoligono) override;
    // Divides each selected beam and truss member into equal parts. False, and nothing done, when it is refused, as
    // where a part would be too short.
    bool DivideEqually(int parts);
    void SelezionaElementiPiano(CPoligono* pPoligono) override;
    void SelezionaElementiRange(CFPoint da, CFPoint a, int nodi, int aste, int travi, int solai, int setti) override;

    // Tells along which axis, 0 X to 2 Z, the dialog limits that asks for a range: its points say 0 on the other two,
    // and on all three for the ground floor. Without one, or for another number, the points are corners of a box.
    void SetRangeAxis(std::function<int()> axis) { m_rangeAxis = std::move(axis); }

    // ---- What the application uses. Only nodes and elements of the document can be selected; the flag on the element
    // answers whether it is. All four tell the observers.
    void Add(CElemento* element);
    void Remove(CElemento* element);
    void Add(const std::vector<CElemento*>& elements);
    void Remove(const std::vector<CElemento*>& elements);
    void Clear();

    int Size(Kind kind) const { return static_cast<int>(m_kinds[static_cast<std::size_t>(kind)].size()); }
    CElemento* At(Kind kind, int index) const; // null for an index outside
    const std::vector<CElemento*>& All() const { return m_all; }
    CString Text() const; // "Selezionati: 3 nodi, 1 trave"
    bool IsEmpty() const { return m_all.empty(); }
    CObList* List();

    Snapshot TakeSnapshot();
    // In two halves: what is selected is let go while objects leave and come, unless it is the same before and after,
    // which is no news.
    void PrepareRestore(const Snapshot& snapshot);
    void Restore(const Snapshot& snapshot);
    // Forgets without touching the elements, which may be gone.
    void Forget();

  private:
    unsigned Put(CElemento* element);
    void Changed(unsigned kinds);

    // The motion from the selection to the i-th copy, from 1; that of the selection itself is the first.
    using MotionOf = std::function<Motion(int)>;
    void Refuse(const CString& why) const;
    bool CanBegin(int copies) const;
    bool CanCopy(const Copier& copier, int copies, const MotionOf& motionOf) const;
    void Transform(const MotionOf& motionOf, int copies, int join, const char* stepName, const CString& message);
    void Rotate(const CFPoint& from, const CFPoint& axis, const std::function<double(int)>& radians, double snap,
                int copies, int join);

    HostDocument& m_document;
    std::vector<CElemento*> m_all;
    std::array<std::vector<CElemento*>, kindCount> m_kinds;
    Snapshot m_snapshot; // of the current state, or null
    CObList m_list;
    bool m_listValid = false;
    std::unique_ptr<CopyCycle> m_cycle; // between the start and the end of a copy cycle
    std::function<int()> m_rangeAxis;
};

} // namespace host
