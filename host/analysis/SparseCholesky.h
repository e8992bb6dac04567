// The factor of the stiffness of a structure: sparse, symmetric, positive definite.
#pragma once

#include "host/analysis/FreeMemory.h"

#include <Eigen/SparseCore>

#include <memory>
#include <span>

namespace host {

// Column by column. Long indices, because a factor may have more than 2^31 entries.
using SparseMatrix = Eigen::SparseMatrix<double, Eigen::ColMajor, std::int64_t>;

class SparseCholesky {
  public:
    // A factor that needs more than so many bytes is refused.
    explicit SparseCholesky(std::uint64_t memory = FreeMemory());
    ~SparseCholesky();

    // Takes the lower half. `nodes` tells of each unknown which node it belongs to; those of one node follow each
    // other, and are taken to couple alike. False when a pivot is not positive: then there is no factor. Throws Refusal
    // before it begins what does not fit into the memory, and std::bad_alloc.
    bool Factor(const SparseMatrix& lower, std::span<const int> nodes);
    // Factor must have returned true.
    Eigen::VectorXd Solve(const Eigen::VectorXd& right) const;

  private:
    struct Library;
    std::unique_ptr<Library> m_library;
    std::uint64_t m_memory;
};

} // namespace host
