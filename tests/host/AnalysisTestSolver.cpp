// The sparse factor beside a dense one.
#include "host/analysis/SparseCholesky.h"

#include <gtest/gtest.h>

#include <Eigen/Cholesky>

#include <random>

namespace {

using Sparse = Eigen::SparseMatrix<double>;

// A positive definite matrix with the couplings given, lower half.
Sparse Matrix(int size, const std::vector<std::pair<int, int>>& couplings) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> value(-1, 1);
    std::vector<Eigen::Triplet<double>> entries;
    std::vector<double> diagonal(static_cast<std::size_t>(size), 0.5);
    for (const auto& [a, b] : couplings) {
        const double coupling = value(random);
        entries.emplace_back(std::max(a, b), std::min(a, b), coupling);
        diagonal[static_cast<std::size_t>(a)] += std::abs(coupling);
        diagonal[static_cast<std::size_t>(b)] += std::abs(coupling);
    }
    for (int i = 0; i < size; ++i)
        entries.emplace_back(i, i, diagonal[static_cast<std::size_t>(i)]);
    Sparse matrix(size, size);
    matrix.setFromTriplets(entries.begin(), entries.end());
    return matrix;
}

// Grids, an arrow, a chain, separate pieces, and couplings anywhere: fronts of every shape, wide ones and single
// columns. Catches an update that arrives in the wrong place and fronts joined across branches of the tree.
TEST(AnalysisSolver, AgreesWithTheDenseFactor) {
    std::vector<std::pair<int, std::vector<std::pair<int, int>>>> patterns{{1, {}}, {5, {}}};
    const auto grid = [](int x, int y, int z) {
        std::vector<std::pair<int, int>> couplings;
        for (int i = 0; i < x * y * z; ++i) {
            if (i % x)
                couplings.emplace_back(i - 1, i);
            if (i / x % y)
                couplings.emplace_back(i - x, i);
            if (i / x / y)
                couplings.emplace_back(i - x * y, i);
        }
        return std::pair(x * y * z, couplings);
    };
    patterns.push_back(grid(7, 7, 7));
    patterns.push_back(grid(30, 12, 1));
    patterns.push_back(grid(200, 1, 1));
    std::pair<int, std::vector<std::pair<int, int>>> arrow{120, {}}, anywhere{300, {}}, apart{90, {}};
    for (int i = 1; i < 120; ++i)
        arrow.second.emplace_back(0, i);
    std::mt19937 random(3);
    for (int i = 0; i < 500; ++i)
        if (const int a = static_cast<int>(random() % 300), b = static_cast<int>(random() % 300); a != b)
            anywhere.second.emplace_back(a, b);
    for (int i = 0; i < 90; ++i)
        if (i % 9)
            apart.second.emplace_back(i, i - 1 - (i % 9 > 4));
    for (const auto& each : {arrow, anywhere, apart})
        patterns.push_back(each);
    for (const auto& [size, couplings] : patterns) {
        SCOPED_TRACE(size);
        const Sparse matrix = Matrix(size, couplings);
        const Eigen::VectorXd right = Eigen::VectorXd::LinSpaced(size, 1, 2);
        host::SparseCholesky factor;
        ASSERT_TRUE(factor.Factor(matrix));
        const Eigen::MatrixXd lower = matrix;
        const Eigen::MatrixXd whole = lower.selfadjointView<Eigen::Lower>();
        const Eigen::VectorXd expected = whole.ldlt().solve(right);
        EXPECT_LT((factor.Solve(right) - expected).norm(), 1e-11 * expected.norm());
        EXPECT_GT(factor.LeastPivot(), 0.01);
        EXPECT_LE(factor.LeastPivot(), 1);
    }
}

// Catches a factor of a matrix that has none, which would solve a mechanism.
TEST(AnalysisSolver, PivotsTellNearlySingularMatrices) {
    Sparse matrix = Matrix(40, {});
    for (int i = 1; i < 40; ++i)
        matrix.coeffRef(i, i - 1) = -1;
    for (int i = 0; i < 40; ++i)
        matrix.coeffRef(i, i) = i == 0 || i == 39 ? 1 : 2; // a chain that hangs in the air
    host::SparseCholesky factor;
    if (factor.Factor(matrix))
        EXPECT_LT(factor.LeastPivot(), 1e-12);
    matrix.coeffRef(0, 0) = 1 + 1e-6;
    ASSERT_TRUE(factor.Factor(matrix));
    EXPECT_LT(factor.LeastPivot(), 1e-5);
    EXPECT_GT(factor.LeastPivot(), 1e-8);
    matrix.coeffRef(20, 20) = -1;
    EXPECT_FALSE(factor.Factor(matrix));
}

} // namespace
