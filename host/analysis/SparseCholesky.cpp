#include "host/analysis/SparseCholesky.h"

#include <new>

namespace host {

Eigen::VectorXd SparseCholesky::Blocks::Pivots() const {
    const cholmod_factor& factor = *m_cholmodFactor;
    const auto* order = static_cast<const int*>(factor.Perm);
    const auto* firstColumns = static_cast<const int*>(factor.super);
    const auto* firstRows = static_cast<const int*>(factor.pi);
    const auto* firstValues = static_cast<const int*>(factor.px);
    const auto* values = static_cast<const double*>(factor.x);
    Eigen::VectorXd pivots(static_cast<Eigen::Index>(factor.n));
    for (std::size_t block = 0; block < factor.nsuper; ++block) {
        const int height = firstRows[block + 1] - firstRows[block];
        const int first = firstColumns[block], count = firstColumns[block + 1] - first;
        for (int i = 0; i < count; ++i) {
            const double root = values[firstValues[block] + static_cast<std::ptrdiff_t>(i) * (height + 1)];
            pivots(order[first + i]) = root * root;
        }
    }
    return pivots;
}

SparseCholesky::SparseCholesky() {
    m_factor.cholmod().print = 0; // nothing on the standard output: results go there
}

bool SparseCholesky::Factor(const Eigen::SparseMatrix<double>& lower) {
    const auto demandMemory = [this] { // there is no other error
        if (m_factor.cholmod().status < CHOLMOD_OK)
            throw std::bad_alloc();
    };
    m_leastPivot = 1;
    m_factor.analyzePattern(lower);
    demandMemory(); // before the wrapper looks into a factor that is not there
    m_factor.factorize(lower);
    demandMemory();
    if (m_factor.info() != Eigen::Success)
        return false;
    if (lower.rows() > 0)
        m_leastPivot = (m_factor.Pivots().array() / lower.diagonal().array()).minCoeff();
    return true;
}

Eigen::VectorXd SparseCholesky::Solve(const Eigen::VectorXd& right) const {
    return m_factor.solve(right);
}

} // namespace host
