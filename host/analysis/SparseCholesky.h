// The factor of a sparse symmetric positive definite matrix, A = L Lt, by dense fronts.
//
// Columns of L with the same pattern are eliminated together as one dense block, so nearly all of the work runs in the
// dense kernels of the matrix library: an order of magnitude faster on frames than one column at a time.
#pragma once

#include <Eigen/SparseCore>

#include <vector>

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
    using Sparse = Eigen::SparseMatrix<double>;
    using Permutation = Eigen::PermutationMatrix<Eigen::Dynamic, Eigen::Dynamic, int>;

    // Columns eliminated together, and the rows below them that they reach.
    struct Front {
        int first = 0, count = 0;
        int parent = -1;
        std::vector<int> rows;  // below the columns, increasing
        Eigen::MatrixXd factor; // of the columns, their rows first
    };

    Sparse Order(const Sparse& lower);
    void FindFronts(const std::vector<int>& parent, const std::vector<int>& heights);
    void FindRows(const Sparse& matrix);
    bool Eliminate(Front& front, Eigen::MatrixXd& whole);

    Permutation m_order; // from the caller's places to the factor's
    std::vector<Front> m_fronts;
    double m_leastPivot = 1;
};

} // namespace host
