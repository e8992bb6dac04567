// The factor of a sparse symmetric positive definite matrix, with its least pivot: small ones betray a mechanism.
#pragma once

#include <Eigen/CholmodSupport>

namespace host {

class SparseCholesky {
  public:
    SparseCholesky();

    // Takes the lower half. False when a pivot is not positive: then there is no factor. Throws std::bad_alloc.
    bool Factor(const Eigen::SparseMatrix<double>& lower);
    // The least pivot against the diagonal entry that it comes from: at most 1, small where the matrix is nearly
    // singular.
    double LeastPivot() const { return m_leastPivot; }
    // Factor must have returned true.
    Eigen::VectorXd Solve(const Eigen::VectorXd& right) const;

  private:
    // Columns of like pattern are eliminated together as dense blocks: on compact buildings tens of times faster than
    // one column after the other.
    class Blocks : public Eigen::CholmodSupernodalLLT<Eigen::SparseMatrix<double>> {
      public:
        // By column of the matrix.
        Eigen::VectorXd Pivots() const;
    };

    Blocks m_factor;
    double m_leastPivot = 1;
};

} // namespace host
