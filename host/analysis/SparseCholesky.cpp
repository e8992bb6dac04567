#include "host/analysis/SparseCholesky.h"

#include <Eigen/Cholesky>
#include <Eigen/OrderingMethods>

#include <algorithm>
#include <utility>

namespace host {

namespace {

using Sparse = Eigen::SparseMatrix<double>;

// The elimination tree of a matrix whose upper half is given by columns; -1 for roots.
std::vector<int> treeOf(const Sparse& upper) {
    const auto size = static_cast<std::size_t>(upper.cols());
    std::vector<int> parent(size, -1), top(size, -1);
    for (int column = 0; column < upper.cols(); ++column) {
        for (Sparse::InnerIterator entry(upper, column); entry && entry.row() < column; ++entry) {
            // Up to the root of the entry's subtree, shortening the way for those who come later.
            for (int node = static_cast<int>(entry.row()); node != -1 && node != column;) {
                const int next = std::exchange(top[static_cast<std::size_t>(node)], column);
                if (next == -1)
                    parent[static_cast<std::size_t>(node)] = column;
                node = next;
            }
        }
    }
    return parent;
}

// Children before their parents, each subtree in one piece: place by place the node that comes there.
std::vector<int> postorder(const std::vector<int>& parent) {
    const int size = static_cast<int>(parent.size());
    std::vector<int> child(parent.size(), -1), sibling(parent.size(), -1), order, stack;
    std::vector<int> roots;
    for (int node = size - 1; node >= 0; --node) {
        const int above = parent[static_cast<std::size_t>(node)];
        if (above < 0) {
            roots.push_back(node);
        } else {
            sibling[static_cast<std::size_t>(node)] = child[static_cast<std::size_t>(above)];
            child[static_cast<std::size_t>(above)] = node;
        }
    }
    order.reserve(parent.size());
    stack = roots; // the smallest last, taken first
    while (!stack.empty()) {
        const int node = stack.back();
        int& next = child[static_cast<std::size_t>(node)];
        if (next >= 0) {
            stack.push_back(next);
            next = sibling[static_cast<std::size_t>(next)];
        } else {
            order.push_back(node);
            stack.pop_back();
        }
    }
    return order;
}

// Entries of each column of the factor, diagonal included.
std::vector<int> heightsOf(const Sparse& upper, const std::vector<int>& parent) {
    std::vector<int> heights(parent.size(), 1), seen(parent.size(), -1);
    for (int row = 0; row < upper.cols(); ++row) {
        seen[static_cast<std::size_t>(row)] = row;
        for (Sparse::InnerIterator entry(upper, row); entry && entry.row() < row; ++entry) {
            for (auto node = static_cast<std::size_t>(entry.row()); seen[node] != row;
                 node = static_cast<std::size_t>(parent[node])) {
                ++heights[node];
                seen[node] = row;
            }
        }
    }
    return heights;
}

// Joining a front with the one above stores zeros, but saves moving its update: worth it for narrow ones.
bool worthJoining(int count, int height, int countAbove, int heightAbove) {
    const double joined = count + heightAbove;
    const double zeros = count * (joined - height);
    return count + countAbove <= 12 || zeros <= 0.1 * joined * (count + countAbove);
}

} // namespace

// Fills little, and puts columns that are eliminated together side by side. Returns the matrix in that order, lower
// half.
Sparse SparseCholesky::Order(const Sparse& lower) {
    Permutation back;
    Eigen::AMDOrdering<int>()(lower.selfadjointView<Eigen::Lower>(), back);
    m_order = back.inverse();
    Sparse upper(lower.rows(), lower.cols());
    upper.selfadjointView<Eigen::Upper>() = lower.selfadjointView<Eigen::Lower>().twistedBy(m_order);
    const std::vector<int> order = postorder(treeOf(upper));
    Permutation after(lower.rows());
    for (std::size_t place = 0; place < order.size(); ++place)
        after.indices()(order[place]) = static_cast<int>(place);
    m_order = after * m_order;
    upper.selfadjointView<Eigen::Upper>() = lower.selfadjointView<Eigen::Lower>().twistedBy(m_order);
    const std::vector<int> parent = treeOf(upper);
    FindFronts(parent, heightsOf(upper, parent));
    return upper.transpose();
}

void SparseCholesky::FindFronts(const std::vector<int>& parent, const std::vector<int>& heights) {
    m_fronts.clear();
    const int size = static_cast<int>(parent.size());
    std::vector<int> frontHeights;
    const auto last = [this] { return m_fronts.back().first + m_fronts.back().count - 1; };
    for (int column = 0; column < size; ++column) {
        const int height = heights[static_cast<std::size_t>(column)];
        const bool follows = !m_fronts.empty() && parent[static_cast<std::size_t>(last())] == column;
        if (follows && heights[static_cast<std::size_t>(last())] == height + 1) {
            ++m_fronts.back().count;
        } else {
            m_fronts.push_back({column, 1, -1, {}, {}});
            frontHeights.push_back(height);
        }
    }
    // A front may join the next one when that is its parent.
    std::vector<Front> joined;
    std::vector<int> joinedHeights;
    for (std::size_t i = 0; i < m_fronts.size(); ++i) {
        Front front = std::move(m_fronts[i]);
        int height = frontHeights[i];
        while (!joined.empty() &&
               parent[static_cast<std::size_t>(joined.back().first + joined.back().count - 1)] == front.first &&
               worthJoining(joined.back().count, joinedHeights.back(), front.count, height)) {
            front.first = joined.back().first;
            front.count += joined.back().count;
            height += joined.back().count;
            joined.pop_back();
            joinedHeights.pop_back();
        }
        joined.push_back(std::move(front));
        joinedHeights.push_back(height);
    }
    m_fronts = std::move(joined);
    std::vector<int> frontOf(parent.size());
    for (std::size_t i = 0; i < m_fronts.size(); ++i)
        for (int j = 0; j < m_fronts[i].count; ++j)
            frontOf[static_cast<std::size_t>(m_fronts[i].first + j)] = static_cast<int>(i);
    for (Front& front : m_fronts) {
        const int above = parent[static_cast<std::size_t>(front.first + front.count - 1)];
        front.parent = above < 0 ? -1 : frontOf[static_cast<std::size_t>(above)];
    }
}

// A front reaches what its columns and the fronts below it reach.
void SparseCholesky::FindRows(const Sparse& matrix) {
    std::vector<int> seen(static_cast<std::size_t>(matrix.cols()), -1);
    for (std::size_t i = 0; i < m_fronts.size(); ++i) {
        Front& front = m_fronts[i];
        const int end = front.first + front.count;
        const auto reach = [&](int row) {
            if (row >= end &&
                std::exchange(seen[static_cast<std::size_t>(row)], static_cast<int>(i)) != static_cast<int>(i))
                front.rows.push_back(row);
        };
        const std::vector<int> below = std::exchange(front.rows, {}); // some of them twice
        for (const int row : below)
            reach(row);
        for (int column = front.first; column < end; ++column)
            for (Sparse::InnerIterator entry(matrix, column); entry; ++entry)
                reach(static_cast<int>(entry.row()));
        std::sort(front.rows.begin(), front.rows.end());
        if (front.parent >= 0) {
            auto& above = m_fronts[static_cast<std::size_t>(front.parent)].rows;
            above.insert(above.end(), front.rows.begin(), front.rows.end());
        }
    }
}

// Leaves the update for the front above in `whole`.
bool SparseCholesky::Eliminate(Front& front, Eigen::MatrixXd& whole) {
    const Eigen::Index count = front.count, below = whole.rows() - count;
    const Eigen::VectorXd diagonal = front.factor.col(0);
    auto pivots = whole.topLeftCorner(count, count);
    Eigen::Ref<Eigen::MatrixXd> inPlace(pivots);
    if (Eigen::LLT<Eigen::Ref<Eigen::MatrixXd>>(inPlace).info() != Eigen::Success)
        return false;
    for (Eigen::Index i = 0; i < count; ++i)
        m_leastPivot = std::min(m_leastPivot, pivots(i, i) * pivots(i, i) / diagonal(i));
    if (below > 0) {
        auto reached = whole.bottomLeftCorner(below, count);
        pivots.triangularView<Eigen::Lower>().transpose().solveInPlace<Eigen::OnTheRight>(reached);
        whole.bottomRightCorner(below, below).selfadjointView<Eigen::Lower>().rankUpdate(reached, -1);
    }
    front.factor = whole.leftCols(count);
    return true;
}

bool SparseCholesky::Factor(const Sparse& lower) {
    m_leastPivot = 1;
    const Sparse matrix = Order(lower);
    FindRows(matrix);
    std::vector<int> place(static_cast<std::size_t>(matrix.cols()));
    std::vector<std::vector<std::pair<std::size_t, Eigen::MatrixXd>>> updates(m_fronts.size()); // by receiving front
    for (std::size_t i = 0; i < m_fronts.size(); ++i) {
        Front& front = m_fronts[i];
        const auto size = static_cast<Eigen::Index>(front.rows.size()) + front.count;
        Eigen::MatrixXd whole = Eigen::MatrixXd::Zero(size, size);
        for (int j = 0; j < front.count; ++j)
            place[static_cast<std::size_t>(front.first + j)] = j;
        for (std::size_t j = 0; j < front.rows.size(); ++j)
            place[static_cast<std::size_t>(front.rows[j])] = front.count + static_cast<int>(j);
        front.factor.resize(front.count, 1);
        for (int j = 0; j < front.count; ++j) {
            for (Sparse::InnerIterator entry(matrix, front.first + j); entry; ++entry)
                whole(place[static_cast<std::size_t>(entry.row())], j) = entry.value();
            front.factor(j, 0) = whole(j, j);
        }
        for (const auto& [from, update] : updates[i]) {
            const std::vector<int>& rows = m_fronts[from].rows;
            for (std::size_t column = 0; column < rows.size(); ++column) {
                const int to = place[static_cast<std::size_t>(rows[column])];
                for (std::size_t row = column; row < rows.size(); ++row)
                    whole(place[static_cast<std::size_t>(rows[row])], to) +=
                        update(static_cast<Eigen::Index>(row), static_cast<Eigen::Index>(column));
            }
        }
        updates[i] = {};
        if (!Eliminate(front, whole))
            return false;
        if (front.parent >= 0) {
            const auto below = static_cast<Eigen::Index>(front.rows.size());
            updates[static_cast<std::size_t>(front.parent)].emplace_back(i, whole.bottomRightCorner(below, below));
        }
    }
    return true;
}

Eigen::VectorXd SparseCholesky::Solve(const Eigen::VectorXd& right) const {
    Eigen::VectorXd x = m_order * right;
    Eigen::VectorXd reached;
    for (const Front& front : m_fronts) {
        const auto below = static_cast<Eigen::Index>(front.rows.size());
        auto own = x.segment(front.first, front.count);
        front.factor.topRows(front.count).triangularView<Eigen::Lower>().solveInPlace(own);
        reached.noalias() = front.factor.bottomRows(below) * own;
        for (Eigen::Index i = 0; i < below; ++i)
            x(front.rows[static_cast<std::size_t>(i)]) -= reached(i);
    }
    for (std::size_t i = m_fronts.size(); i-- > 0;) {
        const Front& front = m_fronts[i];
        const auto below = static_cast<Eigen::Index>(front.rows.size());
        auto own = x.segment(front.first, front.count);
        reached.resize(below);
        for (Eigen::Index j = 0; j < below; ++j)
            reached(j) = x(front.rows[static_cast<std::size_t>(j)]);
        own.noalias() -= front.factor.bottomRows(below).transpose() * reached;
        front.factor.topRows(front.count).triangularView<Eigen::Lower>().transpose().solveInPlace(own);
    }
    return m_order.inverse() * x;
}

} // namespace host
