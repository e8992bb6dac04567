// The factor of a sparse symmetric positive definite matrix.
#pragma once

#include <Eigen/CholmodSupport>

namespace host {

class SparseCholesky {
  public:
    SparseCholesky();

    // Takes the lower half. False when a pivot is not positive: then there is no factor. Throws std::bad_alloc.
    bool Factor(const Eigen::SparseMatrix<double>& lower);
    // Factor must have returned true.
    Eigen::VectorXd Solve(const Eigen::VectorXd& right) const;

  private:
    // Columns of like pattern are eliminated together as dense blocks: on compact buildings tens of times faster than
    // one column after the other.
    Eigen::CholmodSupernodalLLT<Eigen::SparseMatrix<double>> m_factor;
};

} // namespace host
