#include "host/analysis/SparseCholesky.h"

#include <new>

namespace host {

SparseCholesky::SparseCholesky() {
    m_factor.cholmod().print = 0; // nothing on the standard output: results go there
}

bool SparseCholesky::Factor(const Eigen::SparseMatrix<double>& lower) {
    const auto demandMemory = [this] { // there is no other error
        if (m_factor.cholmod().status < CHOLMOD_OK)
            throw std::bad_alloc();
    };
    m_factor.analyzePattern(lower);
    demandMemory(); // before the wrapper looks into a factor that is not there
    m_factor.factorize(lower);
    demandMemory();
    return m_factor.info() == Eigen::Success;
}

Eigen::VectorXd SparseCholesky::Solve(const Eigen::VectorXd& right) const {
    return m_factor.solve(right);
}

} // namespace host
