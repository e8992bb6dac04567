// The kinds of loads that the user assigns: what is asked for each, and the load that the answers make. One table, so
// that the dialog knows none of them by name.
#pragma once

#include "model/load/Carico.h"

#include <array>
#include <memory>
#include <span>

namespace host {

struct LoadField {
    enum class Role {
        Value,       // a load without any of these is none
        Place,       // a distance along the line, from its first node
        Coefficient, // changes what the values do
    };

    const char* name; // of the control
    const char* caption;
    int axis;         // 0 to 2: its letter or number follows the caption; -1 for none
    const char* unit; // F stands for the document's unit of force, L for that of length
    Role role = Role::Value;
};

struct LoadAnswers {
    std::array<double, 7> values = {}; // in the order of the kind's fields
    int reference = CCarico::Global;
    int axis = 0; // 0 to 2, of the reference
};

struct LoadKind {
    enum class Target { Nodes, Lines, Model };
    enum class Axes { Global, Local, Chosen };

    const char* name;    // of its controls
    const char* caption; // what the user chooses
    Target target;
    Axes axes;
    bool isStretch; // on one axis, between the places of its first two fields
    std::span<const LoadField> fields;
    std::unique_ptr<CCarico> (*make)(const LoadAnswers& answers);
};

std::span<const LoadKind> LoadKinds();

} // namespace host
