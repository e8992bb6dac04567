// What of a document is analysed, as plain numbers in the document's units.
#pragma once

#include "host/analysis/Member.h"
#include "host/document/DocumentData.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class CCarico;
class CCasoCarico;

namespace host {

// Stiffness of a node against the ground, along or about a direction.
struct GroundSpring {
    int node = 0;
    int first = 0;             // component at the node: 0 for a displacement, 3 for a rotation
    Eigen::Vector3d direction; // of length 1
    double stiffness = 0;
};

struct FrameModel {
    std::vector<CNodo*> nodes;   // in document order
    std::vector<unsigned> fixed; // by node: bit i, component i is restrained
    std::vector<bool> active;    // by node: a member ends there; others are not analysed
    std::vector<Member> members; // beams, then truss members, in document order
    std::vector<GroundSpring> springs;
    double typicalLength = 1;                         // the members' mean
    double extent = 1;                                // the diagonal of the box around the members
    Eigen::Vector3d centre = Eigen::Vector3d::Zero(); // of that box

    // What the user must know of the results: what is not considered, what is not exact. Once each.
    void Note(const CString& sentence);
    std::vector<CString> notes;

  private:
    std::unordered_set<std::string> m_noted;
};

// Throws Refusal when there is nothing to analyse, or something lacks what the analysis needs.
FrameModel ReadFrame(DocumentData& data);

// The loads of one case, gathered from the elements that carry them.
struct CaseLoads {
    std::vector<CTraveRisultati> lines;             // by member; they carry the loads, their end forces are 0
    std::unordered_map<int, ThermalStrain> thermal; // by member
    Eigen::VectorXd nodal;                          // six components a node
    Eigen::VectorXd displacements;                  // prescribed ones, at restrained components; 0 elsewhere
};

// The references from elements to loads, sorted by load case in one walk over the model.
class LoadTable {
  public:
    explicit LoadTable(const FrameModel& model);

    // Notes in the model what it leaves out.
    CaseLoads Gather(FrameModel& model, CCasoCarico& loadCase) const;

  private:
    struct Reference {
        int index; // of the member, or of the node
        CCarico* load;
    };
    struct References {
        std::vector<Reference> onMembers, onNodes;
    };

    std::unordered_map<int, References> m_byCase;
};

} // namespace host
