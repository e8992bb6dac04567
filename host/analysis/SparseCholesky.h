// The factor of a sparse symmetric positive definite matrix, with its least pivot: small ones betray a mechanism.
#pragma once

#include <Eigen/SparseCholesky>

namespace host {

class SparseCholesky {
  public:
    // Takes the lower half. False when a pivot is not positive: then there is no factor.
    bool Factor(const Eigen::SparseMatrix<double>& lower);
    // The least pivot against the diagonal entry that it comes from: at most 1, small where the matrix is nearly
    // singular.
    double LeastPivot() const { return m_leastPivot; }
    // Factor must have returned true.
    Eigen::VectorXd Solve(const Eigen::VectorXd& right) const;

  private:
    Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>> m_factor; // ordered by minimum degree
    double m_leastPivot = 1;
};

} // namespace host
