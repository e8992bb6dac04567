#include "host/view/ViewRenderer.h"

#include "host/document/HostDocument.h"
#include "host/view/GridSight.h"
#include "model/element/Asta.h"
#include "model/element/FaceElemento.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/view/Adv3d.h"

#include <algorithm>
#include <vector>

namespace host {

namespace {

// The projection draws on the context for as long as this lives.
class DrawingScope {
  public:
    DrawingScope(Adv3d& vista, CDC& dc) : m_projection(vista) { m_projection.SetDC(&dc); }
    ~DrawingScope() { m_projection.SetDC(nullptr); }
    DrawingScope(const DrawingScope&) = delete;
    DrawingScope& operator=(const DrawingScope&) = delete;

  private:
    Adv3d& m_projection;
};

template <class Action>
void ForPlanes(HostDocument& document, const Action& action) {
    for (int i = 0; i < document.GetSizeSetti(); ++i)
        action(*document.GetIndexSetto(i));
    for (int i = 0; i < document.GetSizeSolai(); ++i)
        action(*document.GetIndexSolaio(i));
}

// Faces first and sorted by depth: they would cover the lines in front of them as well as those behind.
void DrawPlanes(HostDocument& document, Adv3d& vista) {
    std::vector<CElemento*> shown;
    int faceCount = 0;
    ForPlanes(document, [&](CElemento& element) {
        if (element.CanDraw(&vista)) {
            shown.push_back(&element);
            faceCount += element.GetSizeFaccie(&vista);
        }
    });
    std::vector<FaceElemento> faces(static_cast<std::size_t>(std::max(faceCount, 0)));
    FaceElemento* end = faces.data();
    for (CElemento* element : shown)
        element->SetFacesArray(&end, &vista, nullptr);
    vista.DrawFaces(faces.data(), static_cast<int>(end - faces.data()));
    for (CElemento* element : shown)
        element->Draw(&vista);
}

} // namespace

void DrawModel(HostDocument& document, Adv3d& vista, CDC& dc, int stride) {
    CCasoCarico* loadCase = document.GetSelectCasoCarico();
    vista.SetCasoCarico(loadCase ? loadCase->GetID() : 0);
    stride = std::max(stride, 1);
    const DrawingScope scope(vista, dc);
    DrawPlanes(document, vista);
    if (const ConstructionGrid grid = document.Data().Grid().In(document.GetLunghezza()); grid.shown)
        GridSight(grid, vista).Draw(vista);
    // Lines and nodes ask themselves whether they are to be drawn.
    for (int i = 0; i < document.GetSizeTravi(); i += stride)
        document.GetIndexTrave(i)->Draw(&vista);
    for (int i = 0; i < document.GetSizeAste(); i += stride)
        document.GetIndexAsta(i)->Draw(&vista);
    for (int i = 0; i < document.GetSizeNodi(); i += stride)
        document.GetIndexNodo(i)->Draw(&vista);
    if (stride == 1) {
        ForPlanes(document, [&vista](CElemento& element) { element.DrawInformazioni(&vista); });
        for (int i = 0; i < document.GetSizeTravi(); ++i)
            document.GetIndexTrave(i)->DrawInformazioni(&vista);
        for (int i = 0; i < document.GetSizeAste(); ++i)
            document.GetIndexAsta(i)->DrawInformazioni(&vista);
        for (int i = 0; i < document.GetSizeNodi(); ++i)
            document.GetIndexNodo(i)->DrawInformazioni(&vista);
    }
    vista.Flush();
}

bool GetBounds(HostDocument& document, CFPoint& minimum, CFPoint& maximum) {
    const int count = document.GetSizeNodi();
    if (count == 0)
        return false;
    minimum = maximum = *document.GetIndexNodo(0)->GetPunto();
    for (int i = 1; i < count; ++i) {
        const CFPoint& point = *document.GetIndexNodo(i)->GetPunto();
        minimum = {std::min(minimum.x, point.x), std::min(minimum.y, point.y), std::min(minimum.z, point.z)};
        maximum = {std::max(maximum.x, point.x), std::max(maximum.y, point.y), std::max(maximum.z, point.z)};
    }
    return true;
}

} // namespace host
