#include "host/commands/AssignLoadKinds.h"

namespace host {

namespace {

using Role = LoadField::Role;
using Target = LoadKind::Target;
using Axes = LoadKind::Axes;
using Values = std::array<double, 7>;

const LoadField nodal[] = {{"fx", "Forza", 0, "F"},     {"fy", "Forza", 1, "F"},     {"fz", "Forza", 2, "F"},
                           {"mx", "Momento", 0, "F*L"}, {"my", "Momento", 1, "F*L"}, {"mz", "Momento", 2, "F*L"}};
const LoadField displacement[] = {{"ux", "Spostamento", 0, "L"}, {"uy", "Spostamento", 1, "L"},
                                  {"uz", "Spostamento", 2, "L"}, {"rx", "Rotazione", 0, "rad"},
                                  {"ry", "Rotazione", 1, "rad"}, {"rz", "Rotazione", 2, "rad"}};
const LoadField uniform[] = {{"x", "Carico", 0, "F/L"}, {"y", "Carico", 1, "F/L"}, {"z", "Carico", 2, "F/L"}};
const LoadField trapezoidal[] = {{"da", "Inizio del tratto", -1, "L", Role::Place},
                                 {"a", "Fine del tratto", -1, "L", Role::Place},
                                 {"inizio", "Carico all'inizio", -1, "F/L"},
                                 {"fine", "Carico alla fine", -1, "F/L"}};
const LoadField concentrated[] = {{"distanza", "Distanza dal primo nodo", -1, "L", Role::Place},
                                  {"fx", "Forza", 0, "F"},
                                  {"fy", "Forza", 1, "F"},
                                  {"fz", "Forza", 2, "F"},
                                  {"mx", "Momento", 0, "F*L"},
                                  {"my", "Momento", 1, "F*L"},
                                  {"mz", "Momento", 2, "F*L"}};
const LoadField temperature[] = {{"media", "Variazione media", -1, "°C"_utf8},
                                 {"gradiente2", "Gradiente lungo l'asse", 1, "°C/L"_utf8},
                                 {"gradiente3", "Gradiente lungo l'asse", 2, "°C/L"_utf8},
                                 {"alfa", "Alfa, 0 = del materiale", -1, "1/°C"_utf8, Role::Coefficient}};
const LoadField weight[] = {
    {"x", "Accelerazione", 0, "L/s^2"}, {"y", "Accelerazione", 1, "L/s^2"}, {"z", "Accelerazione", 2, "L/s^2"}};

CFPoint Three(const Values& values, std::size_t first) {
    return {values[first], values[first + 1], values[first + 2]};
}

std::unique_ptr<CCarico> MakeNodal(const LoadAnswers& answers) {
    return std::make_unique<CCaricoNodale>(Three(answers.values, 0), Three(answers.values, 3));
}

std::unique_ptr<CCarico> MakeDisplacement(const LoadAnswers& answers) {
    return std::make_unique<CCaricoSpostamento>(Three(answers.values, 0), Three(answers.values, 3));
}

std::unique_ptr<CCarico> MakeUniform(const LoadAnswers& answers) {
    return std::make_unique<CCaricoUniforme>(Three(answers.values, 0), answers.reference);
}

std::unique_ptr<CCarico> MakeTrapezoidal(const LoadAnswers& answers) {
    const Values& v = answers.values;
    auto load = std::make_unique<CCaricoTrapezoidale>();
    load->SetReference(answers.reference);
    load->GetStretch(answers.axis) = {v[0], v[1], v[2], v[3]};
    return load;
}

std::unique_ptr<CCarico> MakeConcentrated(const LoadAnswers& answers) {
    auto load = std::make_unique<CCaricoConcentrato>(Three(answers.values, 1), answers.values[0], answers.reference);
    load->GetMomentVector() = Three(answers.values, 4);
    return load;
}

std::unique_ptr<CCarico> MakeTemperature(const LoadAnswers& answers) {
    const Values& v = answers.values;
    auto load = std::make_unique<CCaricoTemperatura>();
    load->GetTemperature() = v[0];
    load->GetGradient2() = v[1];
    load->GetGradient3() = v[2];
    load->GetAlpha() = v[3];
    return load;
}

std::unique_ptr<CCarico> MakeWeight(const LoadAnswers& answers) {
    return std::make_unique<CCaricoPesoProprio>(Three(answers.values, 0));
}

const LoadKind kinds[] = {
    {"nodale", "Forza nodale", Target::Nodes, Axes::Global, false, nodal, MakeNodal},
    {"spostamento", "Spostamento imposto", Target::Nodes, Axes::Global, false, displacement, MakeDisplacement},
    {"uniforme", "Uniforme", Target::Lines, Axes::Chosen, false, uniform, MakeUniform},
    {"trapezoidale", "Trapezoidale", Target::Lines, Axes::Chosen, true, trapezoidal, MakeTrapezoidal},
    {"concentrato", "Concentrato", Target::Lines, Axes::Chosen, false, concentrated, MakeConcentrated},
    {"temperatura", "Temperatura", Target::Lines, Axes::Local, false, temperature, MakeTemperature},
    {"peso", "Peso proprio", Target::Model, Axes::Global, false, weight, MakeWeight},
};

} // namespace

std::span<const LoadKind> LoadKinds() {
    return kinds;
}

} // namespace host
