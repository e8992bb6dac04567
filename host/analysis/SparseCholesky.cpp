#include "host/analysis/SparseCholesky.h"

#include "host/document/Refusal.h"

#include <cholmod.h>

#include <cstring>
#include <new>
#include <vector>

namespace host {

namespace {

using Index = SuiteSparse_long;
static_assert(sizeof(Index) == sizeof(SparseMatrix::StorageIndex));

std::size_t Place(Index index) {
    return static_cast<std::size_t>(index);
}

// The matrix with one unknown for each node.
struct NodeGraph {
    NodeGraph(const SparseMatrix& lower, std::span<const int> nodes) {
        std::vector<Index> groups; // by unknown
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (i == 0 || nodes[i] != nodes[i - 1])
                firstUnknowns.push_back(static_cast<Index>(i));
            groups.push_back(static_cast<Index>(firstUnknowns.size()) - 1);
        }
        size = static_cast<Index>(firstUnknowns.size());
        firstUnknowns.push_back(static_cast<Index>(nodes.size()));
        std::vector<Index> seen(Place(size), -1); // by row: the last column that it was found in
        for (Index column = 0; column < size; ++column) {
            starts.push_back(static_cast<Index>(rows.size()));
            for (Index i = firstUnknowns[Place(column)]; i < firstUnknowns[Place(column) + 1]; ++i) {
                for (SparseMatrix::InnerIterator entry(lower, i); entry; ++entry) {
                    const Index row = groups[Place(entry.row())];
                    if (seen[Place(row)] != column)
                        rows.push_back(row);
                    seen[Place(row)] = column;
                }
            }
        }
        starts.push_back(static_cast<Index>(rows.size()));
    }

    Index size = 0;
    std::vector<Index> firstUnknowns; // by node, and one past the last
    std::vector<Index> starts, rows;  // lower half, by column; rows in no order
};

// A view of a lower half; without values only of where something is.
cholmod_sparse View(Index size, const Index* starts, const Index* rows, Index entries, const double* values) {
    cholmod_sparse view;
    std::memset(&view, 0, sizeof view);
    view.nrow = view.ncol = Place(size);
    view.nzmax = Place(entries);
    view.p = const_cast<Index*>(starts);
    view.i = const_cast<Index*>(rows);
    view.x = const_cast<double*>(values);
    view.stype = -1;
    view.itype = CHOLMOD_LONG;
    view.xtype = values ? CHOLMOD_REAL : CHOLMOD_PATTERN;
    view.dtype = CHOLMOD_DOUBLE;
    view.packed = 1;
    return view;
}

} // namespace

// The library's state and the factor in it.
struct SparseCholesky::Library {
    Library() {
        cholmod_l_start(&common);
        common.print = 0; // nothing on the standard output: results go there
    }
    ~Library() {
        Drop();
        cholmod_l_finish(&common);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    void Drop() { cholmod_l_free_factor(&factor, &common); }
    // There is no other error, as what is handed over is well-formed.
    void DemandMemory() const {
        if (common.status < CHOLMOD_OK)
            throw std::bad_alloc();
    }

    // In which order to eliminate the unknowns: of nested dissection and minimum degree the one that leaves the smaller
    // factor. Nodes are ordered, not unknowns: that is faster, and both methods find better orders.
    static std::vector<Index> Order(const NodeGraph& graph);

    cholmod_common common;
    cholmod_factor* factor = nullptr;
};

std::vector<Index> SparseCholesky::Library::Order(const NodeGraph& graph) {
    Library library;
    library.common.supernodal = CHOLMOD_SIMPLICIAL;
    library.common.nmethods = 2;
    library.common.method[0].ordering = CHOLMOD_AMD;
    library.common.method[1].ordering = CHOLMOD_METIS;
    cholmod_sparse view =
        View(graph.size, graph.starts.data(), graph.rows.data(), static_cast<Index>(graph.rows.size()), nullptr);
    library.factor = cholmod_l_analyze(&view, &library.common);
    library.DemandMemory();
    std::vector<Index> order;
    const auto* nodes = static_cast<const Index*>(library.factor->Perm);
    for (Index i = 0; i < graph.size; ++i)
        for (Index unknown = graph.firstUnknowns[Place(nodes[i])]; unknown < graph.firstUnknowns[Place(nodes[i]) + 1];
             ++unknown)
            order.push_back(unknown);
    return order;
}

SparseCholesky::SparseCholesky(std::uint64_t memory) : m_library(std::make_unique<Library>()), m_memory(memory) {
    m_library->common.supernodal = CHOLMOD_SUPERNODAL; // like columns as dense blocks
    m_library->common.nmethods = 1;
    m_library->common.method[0].ordering = CHOLMOD_GIVEN;
}

SparseCholesky::~SparseCholesky() = default;

bool SparseCholesky::Factor(const SparseMatrix& lower, std::span<const int> nodes) {
    Library& library = *m_library;
    library.Drop();
    std::vector<Index> order = Library::Order(NodeGraph(lower, nodes));
    cholmod_sparse view =
        View(lower.cols(), lower.outerIndexPtr(), lower.innerIndexPtr(), lower.nonZeros(), lower.valuePtr());
    view.sorted = 1;
    library.factor = cholmod_l_analyze_p(&view, order.data(), nullptr, 0, &library.common);
    library.DemandMemory();
    const double needed = 8.0 * static_cast<double>(library.factor->xsize + library.factor->maxcsize);
    if (needed > static_cast<double>(m_memory))
        throw Refusal("Le equazioni della struttura richiedono %.1f GB di memoria, ma ne sono liberi solo %.1f."_t,
                      needed / 1e9, static_cast<double>(m_memory) / 1e9);
    cholmod_l_factorize(&view, library.factor, &library.common);
    library.DemandMemory();
    return library.common.status == CHOLMOD_OK;
}

Eigen::VectorXd SparseCholesky::Solve(const Eigen::VectorXd& right) const {
    cholmod_dense view;
    std::memset(&view, 0, sizeof view);
    view.nrow = view.nzmax = view.d = Place(right.size());
    view.ncol = 1;
    view.x = const_cast<double*>(right.data());
    view.xtype = CHOLMOD_REAL;
    view.dtype = CHOLMOD_DOUBLE;
    cholmod_dense* solution = cholmod_l_solve(CHOLMOD_A, m_library->factor, &view, &m_library->common);
    m_library->DemandMemory();
    const Eigen::VectorXd copy = Eigen::Map<const Eigen::VectorXd>(static_cast<double*>(solution->x), right.size());
    cholmod_l_free_dense(&solution, &m_library->common);
    return copy;
}

} // namespace host
