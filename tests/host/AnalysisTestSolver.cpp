// What the factor says of matrices that have none.
#include "host/analysis/SparseCholesky.h"

#include <gtest/gtest.h>

using namespace host;

namespace {

// Springs in a row that hang in the air: every row of the matrix sums to 0.
Eigen::SparseMatrix<double> LooseChain(int size) {
    Eigen::SparseMatrix<double> lower(size, size);
    for (int i = 0; i < size; ++i) {
        lower.coeffRef(i, i) = i == 0 || i == size - 1 ? 1 : 2;
        if (i > 0)
            lower.coeffRef(i, i - 1) = -1;
    }
    return lower;
}

// Catches a factor of a matrix that has none, which would solve a mechanism.
TEST(AnalysisSolver, PivotsTellNearlySingularMatrices) {
    Eigen::SparseMatrix<double> matrix = LooseChain(40);
    host::SparseCholesky factor;
    const bool factored = factor.Factor(matrix); // rounding may leave a pivot just above 0
    EXPECT_TRUE(!factored || factor.LeastPivot() < 1e-12);
    matrix.coeffRef(0, 0) = 1 + 1e-6;
    ASSERT_TRUE(factor.Factor(matrix));
    EXPECT_LT(factor.LeastPivot(), 1e-5);
    EXPECT_GT(factor.LeastPivot(), 1e-8);
    matrix.coeffRef(20, 20) = -1;
    EXPECT_FALSE(factor.Factor(matrix));
}

} // namespace
