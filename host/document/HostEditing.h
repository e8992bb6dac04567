// The application's own changes of the document: adding, changing, moving and removing objects.
#pragma once

#include "host/document/HostLists.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace host {

// Each is one undo step, or part of the one that is open.
class HostEditing : public HostLists {
  public:
    // Takes the object, gives it its number and returns it; for named entities and elements built elsewhere. The
    // nodes of an element must be the document's.
    CElemento* Add(std::unique_ptr<CElemento> object, const char* stepName = "Aggiungi");
    template <class T>
    T* AddNew(std::unique_ptr<T> object, const char* stepName = "Aggiungi") {
        return static_cast<T*>(Add(std::move(object), stepName));
    }
    // Changes attributes of an object of the document (not its nodes, nor a node's place) so that undo knows. Of
    // combinations and groups no result depends on any.
    void Modify(CElemento& object, const std::function<void()>& change, Reach reach = Reach::Results);
    void MoveNodes(const std::vector<std::pair<CNodo*, CFPoint>>& places);
    // Removes objects with what hangs on them: nodes take their elements with them, load cases their loads.
    void Remove(std::vector<CElemento*> objects);
    void DeleteSelection();

    void ChangeUnits(Lunghezza length, Forza force);
    void SetTolerance(double tolerance); // nothing for a negative one, or no number

    void AssegnaBetaVista(double beta, int flag1, int flag2) override;
    void AssegnaBetaSelezione(double beta, int flag1, int flag2) override;

  protected:
    using HostLists::HostLists;
};

} // namespace host
