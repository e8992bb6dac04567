// The fixed numbers, captions and pictures of the module's dialog templates, of those still to come as well. Scripts
// take their numbers from the dialogs' headers: only a second list of them catches a number that is wrong there.
#pragma once

#include <map>
#include <sstream>
#include <string>

namespace inventory {

// Number, blank and caption, each with a "|" behind it: blanks at a caption's end count. Empty when set at run time.
inline constexpr const char* captions =
    "105 Nuovo Nome|107 Opzioni Analisi|108 Aggiungi Nodo in coordinate relative|109 Check Modello|110 Strutture |"
    "111 Distanza fra 2 punti|112 Aggiungi Profilo|113 Nodo Reazioni Vincolari|114 Seleziona Elementi|"
    "116 Sezioni Stampa|251 Colore|333 Palo|334 Trave Continua|335 Trave Circolare|9001 Crea Combinazione|"
    "9002 Apri Vista|9003 Gestione Archivi|9004 Colori|9005 Copia Ruota|9006 Copia Trasla|9007 Crea Caso di Carico|"
    "9008 Crea Gruppo|9009 Diagrammi|9010 Dividi|9011 Generazione Nodi 2 Punti|9012 Generazione Nodi Arco 3 Punti|"
    "9013 Arco Centro - 1 Punto|9014 Generazione Nodi Cerchio|9015 Generazione Nodi Lineare|9016 Griglia Nodi|"
    "9017 Informazioni sulla Struttura|9018 Info Progetto|9019 Check|9020 Casi di Carico|9021 Lista Gruppi|"
    "9022 Lista Materiali|9023 Lista Sezioni|9024 Lista Spessori|9025 Mesh 3 Punti|9026 Mesh 4 Punti|9027 Muovi|"
    "9028 Nome della vista|9029 Scala Colori|9030 Range|9031 Rinomina file|9032 Ruota |9033 Ruota Vista|"
    "9034 Salva Vista|9035 Scala|9036 Lista Tabelle|9037 Lista Toolbar|9038 Specchia|9039 Spezza|9040 Arco Circolare|"
    "9041 Arco Parabolico|9042 Cilindro|9043 Graticcio|9044 Graticcio Reticolare|9045 Howe Copertura|9046 Howe Ponte|"
    "9047 Pratt|9048 Telaio|9049 Vierendel|9050 Volta Cilindrica Catenaria|9051 Volta Cilindrica Cicloidale|"
    "9052 Fattore di Zoom|9053 Unita di Misura|9054 Elimina Nodi Sovrapposti|9055 Tabella|9056 Warren|"
    "9057 Volta Cilindrica SemiEllittica|9058 Volta Cilindrica Arco Parabolico|9059 Volta Cilindrica Circolare|9130 |"
    "9133 Angolo Beta|9134 Impostazioni Progetto|9135 Progetto Trave|9136 Progetto Setto|9137 Trave Elicoidale|"
    "9138 Trave Ginocchio|9139 Intersezione Linee Piano|9140 Selezione Elementi Piano|9141 Selezione Elementi Linea|"
    "9142 Piastra Anello Circolare|9143 Piastra Circolare|9144 Piastra Rettangolare|9145 Platea su Pali|"
    "9146 Mesh 2 Punti Vettore|";

// Menus whose dialogs are still to come.
inline constexpr int scaleMenu = 106, fileMenu = 376;

// Bitmap in the upper left corner, by template.
inline const std::map<int, int> pictures = {{9005, 175}, {9006, 176},  {9011, 336}, {9012, 341}, {9013, 338},
                                            {9014, 342}, {9015, 337},  {9025, 344}, {9026, 343}, {9032, 175},
                                            {9038, 178}, {9133, 9134}, {9146, 9135}};

inline std::map<int, std::string> Captions() {
    std::map<int, std::string> byNumber;
    std::istringstream entries(captions);
    for (std::string entry; std::getline(entries, entry, '|');)
        byNumber[std::stoi(entry)] = entry.substr(entry.find(' ') + 1);
    return byNumber;
}

} // namespace inventory
