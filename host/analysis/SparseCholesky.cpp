#include "host/analysis/SparseCholesky.h"

namespace host {

bool SparseCholesky::Factor(const Eigen::SparseMatrix<double>& lower) {
    m_leastPivot = 1;
    m_factor.compute(lower);
    if (m_factor.info() != Eigen::Success)
        return false;
    const Eigen::VectorXd diagonal = m_factor.permutationP() * Eigen::VectorXd(lower.diagonal());
    const auto& pivots = m_factor.vectorD();
    if (!(pivots.array() > 0).all())
        return false;
    if (pivots.size() > 0)
        m_leastPivot = (pivots.array() / diagonal.array()).minCoeff();
    return true;
}

Eigen::VectorXd SparseCholesky::Solve(const Eigen::VectorXd& right) const {
    return m_factor.solve(right);
}

} // namespace host
