// The part of the document that walks over what is selected and selects by identifier.
#pragma once

#include "platform/core/Types.h"

class Adv3dRect;
class CAsta;
class CNodo;
class CObList;
class CQuovarSelection;
class CSetto;
class CSolaio;
class CTrave;
class CView;

class DocumentSelected {
  public:
    // Walks over the selected elements of a kind; null after the last. The position belongs to one walk; the selection
    // must not change during it.
    virtual CTrave* GetFirstTraveSelect(POSITION& pos) = 0;
    virtual CTrave* GetNextTraveSelect(POSITION& pos) = 0;
    virtual CAsta* GetFirstAstaSelect(POSITION& pos) = 0;
    virtual CAsta* GetNextAstaSelect(POSITION& pos) = 0;
    virtual CSetto* GetFirstSettoSelect(POSITION& pos) = 0;
    virtual CSetto* GetNextSettoSelect(POSITION& pos) = 0;
    virtual CSolaio* GetFirstSolaioSelect(POSITION& pos) = 0;
    virtual CSolaio* GetNextSolaioSelect(POSITION& pos) = 0;
    virtual CNodo* GetFirstNodoSelect(POSITION& pos) = 0;
    virtual int GetSizeTraviSelect() = 0;
    virtual int GetSizeAsteSelect() = 0;
    virtual int GetSizeSettiSelect() = 0;
    virtual int GetSizeSolaiSelect() = 0;
    virtual int IsSelectTrave() = 0; // non-zero when a beam is selected
    // Every selected object; the list stays the document's.
    virtual CObList* GetListaSelezione() = 0;
    virtual CQuovarSelection* GetSelection() = 0;

    // Add the element with that identifier to the selection. They set, never toggle: a caller may name one element
    // several times. pRect is null or gathers the screen region to redraw.
    virtual void SelezionaNodo(int id, CView* pView) = 0;
    virtual void SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) = 0;
    virtual void SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) = 0;
    virtual void SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) = 0;
    virtual void SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) = 0;

  protected:
    ~DocumentSelected() = default;
};
