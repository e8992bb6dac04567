// What a ".3dd" text model says, as plain numbers in the file's own units. Reading it knows nothing of documents.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace host {

using Triple = std::array<double, 3>;
using Sextuple = std::array<double, 6>;

struct Frame3ddElement {
    int first = 0, second = 0; // node numbers, from 1
    double area = 0, shearY = 0, shearZ = 0, torsion = 0, inertiaY = 0, inertiaZ = 0;
    double young = 0, shearModulus = 0;
    double roll = 0;    // degrees
    double density = 0; // mass per volume

    double Poisson() const { return young / (2 * shearModulus) - 1; }
};

// Numbers of nodes and elements are those of the file, from 1.
struct Frame3ddNodal {
    int node = 0;
    Sextuple values{}; // three along, three about the global axes
};
struct Frame3ddUniform {
    int element = 0;
    Triple load{}; // local axes, per length
};
struct Frame3ddTrapezoidal {
    struct Part {
        double from = 0, to = 0, startLoad = 0, endLoad = 0;
    };
    int element = 0;
    std::array<Part, 3> parts; // one for each local axis
};
struct Frame3ddPoint {
    int element = 0;
    Triple load{};       // local axes
    double position = 0; // from the first node
};
struct Frame3ddTemperature {
    int element = 0;
    double alpha = 0;
    double depthY = 0, depthZ = 0;
    double plusY = 0, minusY = 0, plusZ = 0, minusZ = 0; // change of temperature of the four faces

    // Their mean lengthens the axis, their differences over the depths bend it.
    double Mean() const { return (plusY + minusY + plusZ + minusZ) / 4; }
    double GradientY() const { return depthY > 0 ? (plusY - minusY) / depthY : 0; }
    double GradientZ() const { return depthZ > 0 ? (plusZ - minusZ) / depthZ : 0; }
};

struct Frame3ddLoadCase {
    Triple gravity{};
    std::vector<Frame3ddNodal> nodal;
    std::vector<Frame3ddUniform> uniform;
    std::vector<Frame3ddTrapezoidal> trapezoidal;
    std::vector<Frame3ddPoint> point;
    std::vector<Frame3ddTemperature> temperature;
    std::vector<Frame3ddNodal> displacement;
};

struct Frame3ddModel {
    std::string title;
    std::vector<Triple> nodes; // node n at n - 1
    bool someRadius = false;   // a node has a radius other than 0
    struct Restraint {
        int node = 0;
        std::array<bool, 6> fixed{};
    };
    std::vector<Restraint> restraints;
    std::vector<Frame3ddElement> elements; // element n at n - 1
    bool someRigidInShear = false;         // an element has a shear area of 0
    bool shear = false;                    // the shear areas count
    bool geometric = false;                // the author asks for the geometric stiffness
    std::vector<Frame3ddLoadCase> loadCases;
};

// Reads the text whole; what follows the load cases (dynamic analysis) is skipped. Throws FileError with the line and
// what was expected there.
Frame3ddModel ParseFrame3dd(std::string_view text);

} // namespace host
