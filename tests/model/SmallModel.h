// A model of a few objects for the tests of this folder, destroyed in the order that a document uses: nodes last.
#pragma once

#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"
#include "model/index/NodeGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

class SmallModel {
  public:
    SmallModel() {
        material.SetID(1);
        section.SetID(1);
        thickness.SetID(1);
        material.SetE(3e7);
        material.SetG(1.25e7);
        section.SetRectangle(0.3, 0.5);
        thickness.SetThickness(0.2);
    }

    CNodo& Node(double x, double y, double z) {
        nodes.push_back(std::make_unique<CNodo>(CFPoint(x, y, z)));
        nodes.back()->SetID(static_cast<int>(nodes.size()));
        return *nodes.back();
    }
    // A line with material and section.
    template <typename T>
    T& Line(CNodo& from, CNodo& to) {
        auto made = std::make_unique<T>();
        T& result = *made;
        result.SetID(static_cast<int>(elements.size()) + 1);
        result.SetNodi(&from, &to);
        result.SetMateriale(1, &material);
        result.SetSezione(1, &section);
        elements.push_back(std::move(made));
        return result;
    }
    CTrave& Beam(CNodo& from, CNodo& to) { return Line<CTrave>(from, to); }
    // A wall or slab with material and thickness.
    template <typename T>
    T& Polygon(std::initializer_list<CNodo*> corners) {
        auto made = std::make_unique<T>();
        T& result = *made;
        result.SetID(static_cast<int>(elements.size()) + 1);
        for (CNodo* corner : corners)
            result.AggiungiVertice(corner);
        result.SetMateriale(1, &material);
        result.SetThickness(1, &thickness);
        elements.push_back(std::move(made));
        return result;
    }

    // The same with nodes of its own.
    template <typename T>
    T& Polygon(std::initializer_list<CFPoint> corners) {
        auto& result = Polygon<T>(std::initializer_list<CNodo*>{});
        for (const CFPoint& corner : corners)
            result.AggiungiVertice(&Node(corner.x, corner.y, corner.z));
        return result;
    }

    CMateriale material;
    CSezione section;
    CSpessore thickness;
    std::vector<std::unique_ptr<CNodo>> nodes;
    std::vector<std::unique_ptr<CElemento>> elements;
};

// The messages of an object's own check, one a line; empty when it says that it is sound.
inline std::string Check(CElemento& element) {
    CStringArray messages;
    const int sound = element.CheckElemento(messages);
    std::string text = sound == (messages.GetSize() == 0) ? "" : "result and messages disagree\n";
    for (const CString& message : messages)
        text += message.ToUtf8() + "\n";
    return text;
}

// Pairs of what came out and what is right, to twelve digits.
inline void ExpectNumbers(std::initializer_list<std::pair<double, double>> pairs) {
    for (const auto& [got, wanted] : pairs)
        EXPECT_NEAR(got, wanted, std::abs(wanted) * 1e-12);
}
