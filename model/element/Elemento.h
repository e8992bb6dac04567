// The base of every model object: identity, flags, units, and the operations that views and dialogs ask of any object.
// An object is 24 bytes plus what its class adds: what few objects have (loads, groups, results, ...) is made on
// demand.
#pragma once

#include "model/element/WriteWatch.h"
#include "model/values/FPoint.h"
#include "model/values/Units.h"
#include "platform/core/Collections.h"
#include "platform/core/Geometry.h"
#include "platform/core/Object.h"
#include "platform/core/String.h"

#include <memory>

class Adv3d;
class Adv3dRect;
class CElementoProgetto;
class CElementoRisultati;
class CElementoSettings;
class CElementoVerifica;
class CNodo;
struct ElementExtras;
struct FaceElemento;

class CElemento : public CObject {
    DECLARE_DYNAMIC(CElemento)

    ~CElemento() override;

    // The order of these operations is fixed. Where nothing else is said, a test returns non-zero for yes, an operation
    // returns non-zero on success, and the base's own answer is neutral: no, 0, or nothing done. A null projection
    // draws and hits nothing.

    virtual int CanDraw(Adv3d* pVista);           // visible and shown by the view's settings
    virtual void Draw(Adv3d* pVista);             // the object itself
    virtual void DrawInformazioni(Adv3d* pVista); // everything beside it that the view's settings show
    virtual int IsInRect(CPoint a, CPoint b,
                         Adv3d* pVista);           // wholly inside the rectangle of two opposite corners, pixels
    virtual int PtIn(CPoint punto, Adv3d* pVista); // the pixel touches the object, give or take a few
    // Sets (1) or clears (0) the selection flag and redraws the object; returns non-zero when the flag changed.
    virtual int Select(int seleziona, Adv3d* pVista);
    // Selects the object when it lies in the rectangle, or under the pixel; returns non-zero when it does.
    virtual int Select(CPoint a, CPoint b, Adv3d* pVista);
    virtual int Select(CPoint punto, Adv3d* pVista);
    virtual void UpdateInvalideRect(Adv3dRect* pRect, int margine); // adds the object's screen region, margin in pixels
    virtual double GetProfonditaVista(Adv3d* pVista);               // of its middle; larger is nearer to the eye
    virtual int GetSizeFaccie(Adv3d* pVista);                       // faces that SetFacesArray will write
    // Writes the faces at *ppFaccia, moves *ppFaccia behind them and returns their number; pRect, when given, grows.
    virtual int SetFacesArray(FaceElemento** ppFaccia, Adv3d* pVista, Adv3dRect* pRect);
    // Takes over what a user assigns (material, section, restraint, ...) from an object of the same kind.
    virtual int AssegnaAttributi(CElemento* pElemento);
    // Non-zero when the object is sound; else adds a message for each fault.
    virtual int CheckElemento(CStringArray& messaggi);
    virtual int GetDir(CFPoint& versore, int asse); // a local axis, 0 to 2, as a unit vector
    virtual int GetSize();                          // number of nodes
    virtual CNodo* GetIndexNodo(int i);             // null for an index outside
    virtual int IsInRange(CFPoint da, CFPoint a);   // all nodes between the coordinates of the two points, in any order
    virtual int IsParallelo(CFPoint direzione);     // a line along the direction, or a plane that contains it
    // Change converts every stored value to the unit; Set only says which it is.
    virtual void ChangeLunghezza(Lunghezza lunghezza);
    virtual void ChangeForza(Forza force);
    virtual void SetLunghezza(Lunghezza lunghezza);
    virtual void SetForza(Forza force);
    virtual Lunghezza GetLunghezza();
    virtual Forza GetForza();
    virtual int GetRisultatoNodo(int nodo, int tipo, double& valore);
    virtual int UpdateMinMaxRisultati(int tipo, int& primo, double& minimo, double& massimo);
    virtual int GetProgettoNodo(int nodo, int tipo, double& valore);
    virtual int UpdateMinMaxProgetto(int tipo, int& primo, double& minimo, double& massimo);
    virtual int GetVerificaNodo(int nodo, int tipo, double& valore);
    // Replaces a node by another, or by null when it is about to go; returns how many places changed.
    virtual int UpdateVertex(CObject* pVecchio, CObject* pNuovo);
    virtual int UpdateVertexID(int vecchio, int nuovo, CElemento* pNodo); // the same by identifier
    virtual void DrawCarichi(Adv3d* pVista);
    virtual void DrawInfo(Adv3d* pVista);
    virtual void DrawVincolo(Adv3d* pVista);
    virtual void DrawRisultati(Adv3d* pVista);
    virtual void DrawProgetto(Adv3d* pVista);
    virtual void DrawVerifica(Adv3d* pVista);
    virtual void DrawMolle(Adv3d* pVista);
    virtual void DrawSpecifiche(Adv3d* pVista);
    virtual int GetTextInfo(CString& testo); // one line about the object, in Italian
    // Takes over everything but identity, selection and the links to other objects' lists; see also CopyOf.
    virtual CElemento& operator=(CElemento& altro);
    virtual int IsSelect();
    virtual void SetSelect(int seleziona);
    virtual void SetVisible(int visibile);
    virtual int IsVisible();
    virtual void SetID(int id);
    virtual int GetID();
    virtual void SetAlready(int gia); // a mark for walks over the model; whoever sets it clears it
    virtual int IsAlready();
    virtual CElementoRisultati* GetRisultati(); // null without results; like the next three, not owned
    virtual void SetRisultati(CElementoRisultati* pRisultati);
    virtual CElementoProgetto* GetProgetto();
    virtual void SetProgetto(CElementoProgetto* pProgetto);
    virtual CElementoVerifica* GetVerifica();
    virtual void SetVerifica(CElementoVerifica* pVerifica);
    virtual CElementoSettings* GetSettings(); // settings of its own; null follows the view's
    virtual void SetSettings(CElementoSettings* pSettings);
    virtual int GetDrawFaces();      // drawn as filled faces
    virtual unsigned int GetIDRck(); // identifier of the concrete class; 0 none
    virtual void SetIDRck(unsigned int id);
    virtual unsigned int GetTipoElemento(); // a code of TipoElemento
    virtual void SetTipoElemento(unsigned int tipo);

    // To be called before anything that a dialog may write changes, here or in a record that hangs on the object.
    void BeforeWrite() {
        if (WriteWatch::Listening())
            WriteWatch::Tell(*this);
    }

    // Empties the array; with a non-zero flag its objects are deleted first.
    static void _DestroyArray(CObArray& array, int bElimina);

    // A record to sort, and the comparison in increasing order of its value for qsort.
    struct Order {
        int m_nIndex;
        double m_dValue;
    };
    static int _compareCrescente(const void* primo, const void* secondo);

  protected:
    explicit CElemento(unsigned tipo);
    CElemento(const CElemento& altro); // a new identity: the copy is not selected and has identifier 0

    // Assignment reads its source only, but the contract's operation takes it without const.
    static CElemento& Source(const CElemento& altro) { return const_cast<CElemento&>(altro); }

    // The drawing settings that hold in this view.
    CElementoSettings& Settings(Adv3d& vista);
    // Nothing is to be drawn beside the object: it has nothing out of the ordinary (data() is null), and the view asks
    // for no names.
    bool IsBare(Adv3d& vista);
    ElementExtras* Data() const { return m_pExtras.get(); } // null while the object has nothing out of the ordinary
    ElementExtras& MakeData();
    bool Linked() const { return m_bLinked; } // its nodes list it
    void SetLinked(bool linked) { m_bLinked = linked; }

  private:
    void SetDesignOwner(CElemento* owner);

    int m_nID = 0;
    unsigned m_nTipo : 8;
    unsigned m_nLunghezza : 4;
    unsigned m_nForza : 4;
    unsigned m_bSelect : 1 = 0;
    unsigned m_bVisible : 1 = 1;
    unsigned m_bAlready : 1 = 0;
    unsigned m_bLinked : 1 = 0;
    std::unique_ptr<ElementExtras> m_pExtras;
};
