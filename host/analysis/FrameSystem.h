// The equations of a frame: assembled and factored once, solved for each load case.
#pragma once

#include "host/analysis/FrameModel.h"
#include "host/analysis/SparseCholesky.h"

namespace host {

class FrameSystem {
  public:
    // Numbers the free components and assembles the stiffness. The model must outlive the system.
    explicit FrameSystem(const FrameModel& model);

    // Throws Refusal, naming a node and how it moves, when the structure is a mechanism.
    void Factor();
    // The displacements, six components a node, under forces at the nodes. Restrained components are those that are
    // given. Throws Refusal when a moment turns a node that nothing holds against it.
    Eigen::VectorXd Solve(const Eigen::VectorXd& forces, const Eigen::VectorXd& prescribed) const;

    // The forces that the springs act with on the nodes, six components a node.
    Eigen::VectorXd SpringForces(const Eigen::VectorXd& displacements) const;

    int Unknowns() const { return static_cast<int>(m_stiffness.rows()); }
    const Eigen::SparseMatrix<double>& StiffnessMatrix() const { return m_stiffness; } // lower half

  private:
    using Sparse = Eigen::SparseMatrix<double>;

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
    Eigen::VectorXd SoftestMotion(double& energy) const;
    CString OrTooShort() const;
    [[noreturn]] void Refuse(const Eigen::VectorXd& motion) const;
    int& Unknown(int node, int component) { return m_unknowns[static_cast<std::size_t>(6 * node + component)]; }
    int Unknown(int node, int component) const { return m_unknowns[static_cast<std::size_t>(6 * node + component)]; }

    const FrameModel& m_model;
    std::vector<int> m_unknowns; // six a node; -1 for components that are not solved for
    std::vector<Eigen::Triplet<double>> m_entries;
    std::vector<Eigen::Matrix3d> m_turning; // by node: what holds its rotations
    std::vector<IdleTurn> m_idleTurns;
    Sparse m_stiffness; // lower half
    SparseCholesky m_solver;
};

} // namespace host
