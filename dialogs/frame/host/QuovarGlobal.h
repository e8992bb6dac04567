// Static functions of the host: the active document, and the packing of document-change hints.
#pragma once

#include "platform/core/String.h"

class CCasoCarico;
class CQuovarDoc;

// What a document change is about. A hint is one of these codes with an additional value packed in by the host; hints
// are passed on as they are and taken apart only with the functions below.
enum ModificaDocumento : long {
    MODIFICA_NESSUNA = 0,
    MODIFICA_REGIONE = 5,          // pHint is the Adv3dRect* to redraw
    MODIFICA_SELEZIONE_INIZIO = 8, // the selection is about to change
    MODIFICA_SELEZIONE_FINE = 9,   // it has changed
    MODIFICA_ELEMENTI_INIZIO = 17, // elements are about to change
    MODIFICA_ELEMENTI_FINE = 18,   // they have changed
    MODIFICA_SEZIONI_STAMPA = 19,
    MODIFICA_VERIFICA_SETTI = 31,
    MODIFICA_VERIFICA_TRAVI = 32,
    MODIFICA_PROGETTO = 34,       // additional PROGETTO_TRAVI or PROGETTO_SETTI
    MODIFICA_PROGETTO_TRAVE = 35, // additional: the beam's identifier
    MODIFICA_PROGETTO_SETTO = 36, // additional: the wall's identifier
    MODIFICA_RISULTATI = 39,      // results computed
    MODIFICA_RISULTATI_CASO = 40, // another load case shown
    MODIFICA_RISULTATI_ELIMINATI = 41,
    MODIFICA_STRUTTURA = 42, // elements added, removed or divided
    MODIFICA_CASI_CARICO = 52,
    MODIFICA_GRUPPI = 53,
    MODIFICA_SELEZIONE_NODI = 57,
    MODIFICA_SELEZIONE_ASTE = 58,
    MODIFICA_SELEZIONE_TRAVI = 59,
    MODIFICA_SELEZIONE_SOLAI = 60,
    MODIFICA_SELEZIONE_SETTI = 61,
    MODIFICA_DESELEZIONE = 62,
    MODIFICA_LUNGHEZZE = 66,
    MODIFICA_UNITA = 72,
    MODIFICA_CHECK = 97, // run the model check
    // The only two hints that are sent with an additional value of the sender's own.
    MODIFICA_SELEZIONE_VISTE = 0x700009,
    MODIFICA_ELEMENTI_VISTE = 0x700012
};

inline constexpr long PROGETTO_TRAVI = 0x200000;
inline constexpr long PROGETTO_SETTI = 0x300000;

class CQuovarGlobal {
  public:
    // Null when no project is open.
    static CQuovarDoc* _GetActiveDoc();

    static ModificaDocumento _GetInformazioniBase(long lHint);
    static long _GetInformazioniAggiuntive(long lHint);
    // Stores an element's identifier as the hint's additional value.
    static void _SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore);

    // Where the external solver keeps its files of a project, and the name of its n-th input file. Empty for none.
    static CString _GetPathFilesVorm(CString path);
    static CString _GetFileInputVorm(int n);
};

class CQuovarInterface {
  public:
    // Makes a load case in the document, numbered and named by the host; null when it cannot.
    static CCasoCarico* CreaCasoCarico(CQuovarDoc* pDoc);
};
