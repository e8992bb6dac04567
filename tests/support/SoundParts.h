// What makes elements sound for their own check: a material, a section and a thickness that they share.
#pragma once

#include "model/element/Nodo.h"
#include "model/element/Poligono.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <initializer_list>

class SoundParts {
  public:
    SoundParts() {
        material.SetID(1);
        section.SetID(1);
        thickness.SetID(1);
        material.SetE(3e7);
        material.SetG(1.25e7);
        section.SetRectangle(0.3, 0.5);
        thickness.SetThickness(0.2);
    }

    CMateriale material;
    CSezione section;
    CSpessore thickness;

    template <class Line>
    Line& Sound(Line& line) {
        line.SetMateriale(1, &material);
        line.SetSezione(1, &section);
        return line;
    }
    template <class Polygon>
    Polygon& Sound(Polygon& polygon, std::initializer_list<CNodo*> corners) {
        for (CNodo* corner : corners)
            polygon.AggiungiVertice(corner);
        polygon.SetMateriale(1, &material);
        polygon.SetThickness(1, &thickness);
        return polygon;
    }
};
