// A model of a few objects for the tests of this folder, destroyed in the order that a document uses: nodes last.
#pragma once

#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/index/NodeGrid.h"
#include "tests/support/SoundParts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

class SmallModel : public SoundParts {
  public:
    CNodo& Node(double x, double y, double z) {
        nodes.push_back(std::make_unique<CNodo>(CFPoint(x, y, z)));
        nodes.back()->SetID(static_cast<int>(nodes.size()));
        return *nodes.back();
    }
    // A line with material and section.
    template <typename T>
    T& Line(CNodo& from, CNodo& to) {
        T& result = Sound(Made<T>());
        result.SetNodi(&from, &to);
        return result;
    }
    CTrave& Beam(CNodo& from, CNodo& to) { return Line<CTrave>(from, to); }
    // A wall or slab with material and thickness.
    template <typename T>
    T& Polygon(std::initializer_list<CNodo*> corners) {
        return Sound(Made<T>(), corners);
    }

    // The same with nodes of its own.
    template <typename T>
    T& Polygon(std::initializer_list<CFPoint> corners) {
        auto& result = Polygon<T>(std::initializer_list<CNodo*>{});
        for (const CFPoint& corner : corners)
            result.AggiungiVertice(&Node(corner.x, corner.y, corner.z));
        return result;
    }

    std::vector<std::unique_ptr<CNodo>> nodes;
    std::vector<std::unique_ptr<CElemento>> elements;

  private:
    template <typename T>
    T& Made() {
        elements.push_back(std::make_unique<T>());
        elements.back()->SetID(static_cast<int>(elements.size()));
        return static_cast<T&>(*elements.back());
    }
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
