// Kind codes of the model objects. Stored in project files: never renumber.
#pragma once

namespace TipoElemento {
enum Codice : unsigned {
    None = 0,
    Nodo = 1,
    Trave = 2,
    Asta = 3,
    Solaio = 4,
    Setto = 5,
    Poligono = 6,
    CasoCarico = 20,
    Combinazione = 21,
    Gruppo = 22,
    Materiale = 23,
    Sezione = 24,
    Spessore = 25,
    CaricoNodale = 40,
    CaricoSpostamento = 41,
    CaricoUniforme = 42,
    CaricoTrapezoidale = 43,
    CaricoConcentrato = 44,
    CaricoTemperatura = 45,
    CaricoPesoProprio = 46,
    SvincoliTrave = 60,
};
} // namespace TipoElemento
