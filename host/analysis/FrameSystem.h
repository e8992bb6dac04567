// The equations of a frame: assembled and factored once, solved for each load case.
#pragma once

#include "host/analysis/ElementForces.h"
#include "host/analysis/SparseCholesky.h"

namespace host {

class FrameSystem {
  public:
    // Numbers the free components and assembles the stiffness. The model must outlive the system.
    explicit FrameSystem(const FrameModel& model);

    // Throws Refusal, naming a node and how it moves, when the structure is a mechanism, or so soft against its
    // stiffest members that the digits of a number do not tell it from one.
    void Factor();
    // The displacements, six components a node, under forces at the nodes. Restrained components are those that are
    // given. Throws Refusal when a moment turns a node that nothing holds against it.
    LongVector Solve(const Eigen::VectorXd& forces, const Eigen::VectorXd& prescribed) const;

    const ElementForces& Elements() const { return m_elements; }
    // The forces that the springs act with on the nodes, six components a node.
    Eigen::VectorXd SpringForces(const Eigen::VectorXd& displacements) const;

    int Unknowns() const { return static_cast<int>(m_stiffness.rows()); }
    const SparseMatrix& StiffnessMatrix() const { return m_stiffness; } // lower half

  private:
    // A turn of one node that no member takes part in. It gets a stiffness, and must not be loaded.
    struct IdleTurn {
        int node;
        Eigen::Vector3d axis; // of length 1
    };

    void Number();
    void Assemble();
    void AddBlock(int rowNode, int row, int columnNode, int column, const Eigen::Matrix3d& block);
    void HoldIdleTurns();
    void HoldIdleTurnsOf(int node, const Eigen::Matrix3d& stiffness);
    void HoldIdleTurn(const IdleTurn& turn, double stiffness);
    void RefuseLooseParts() const;
    // Adds as little stiffness as it takes to have a factor.
    void FactorStiffness();
    // Something of every motion, most of the softest.
    LongVector SoftMotion() const;
    // What the factor does not know of a motion: of one that it solves for, little; of a mechanism, all.
    LongVector Unsolved(const LongVector& motion) const;
    LongVector Normalised(const LongVector& motion) const;
    // Of its unknowns, as the diagonal of the stiffness weighs them: free of units.
    double Size(const Eigen::VectorXd& unknowns) const;
    Eigen::VectorXd Gathered(const LongVector& all) const;
    LongVector Spread(const Eigen::VectorXd& unknowns) const;
    CString OrTooShort() const;
    [[noreturn]] void Refuse(const CString& verdict, const LongVector& motion) const;
    int& Unknown(int node, int component) { return m_unknowns[static_cast<std::size_t>(6 * node + component)]; }
    int Unknown(int node, int component) const { return m_unknowns[static_cast<std::size_t>(6 * node + component)]; }

    const FrameModel& m_model;
    std::vector<int> m_unknowns; // six a node; -1 for components that are not solved for
    std::vector<int> m_nodesOfUnknowns;
    std::vector<Eigen::Triplet<double>> m_entries;
    std::vector<Eigen::Matrix3d> m_turning; // by node: what holds its rotations
    std::vector<IdleTurn> m_idleTurns;
    ElementForces m_elements;   // with what holds idle turns
    SparseMatrix m_stiffness;   // lower half
    Eigen::VectorXd m_diagonal; // of the stiffness
    SparseCholesky m_solver;
};

} // namespace host
