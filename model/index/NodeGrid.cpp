#include "model/index/NodeGrid.h"

#include "model/element/Nodo.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace {

constexpr std::size_t maxLevels = 4; // a snap, a merge and an exact search at once, and one to spare
constexpr double smallestCell = 1e-9;

// The number of the cell of a coordinate. Round coordinates, which most are, would stand on the borders of cells that
// began at 0, and each search for them would touch the cells on both sides.
double CellAt(double coordinate, double perUnit) {
    constexpr double shift = 0.382;
    return std::floor(coordinate * perUnit + shift);
}

// The cells that a search touches on one axis. Beyond 2^53 cells from the origin neighbouring cells have the same
// number.
struct Span {
    double cells[4];
    int count = 0;
};

Span SpanAround(double centre, double tolerance, double perUnit) {
    Span result;
    const double last = CellAt(centre + tolerance, perUnit);
    for (double at = CellAt(centre - tolerance, perUnit); at <= last && result.count < 4; at += 1) {
        result.cells[result.count++] = at;
        if (at + 1 == at)
            break;
    }
    return result;
}

std::uint64_t Mix(std::uint64_t value) {
    value ^= value >> 32;
    value *= 0xd6e8feb86659fd93u;
    value ^= value >> 32;
    value *= 0xd6e8feb86659fd93u;
    return value ^ value >> 32;
}

// Hashes the cell numbers as doubles: coordinates of any size have one. Adding 0 turns -0 into 0.
std::uint32_t HashCell(double x, double y, double z) {
    std::uint64_t hash = Mix(std::bit_cast<std::uint64_t>(x + 0.0));
    hash = Mix(hash ^ std::bit_cast<std::uint64_t>(y + 0.0));
    return static_cast<std::uint32_t>(Mix(hash ^ std::bit_cast<std::uint64_t>(z + 0.0)));
}

std::size_t BucketOf(std::uint32_t hash, std::size_t buckets) {
    return hash & (buckets - 1);
}

} // namespace

NodeGrid::~NodeGrid() {
    Clear();
}

void NodeGrid::Clear() {
    for (CNodo* node : m_slots)
        if (node)
            node->m_grid = nullptr;
    m_slots.clear();
    m_free.clear();
    m_levels.clear();
    m_count = 0;
}

bool NodeGrid::Insert(CNodo* node) {
    if (!node || node->m_grid || !node->m_point.IsFinite())
        return false;
    std::uint32_t slot;
    if (m_free.empty()) {
        slot = static_cast<std::uint32_t>(m_slots.size());
        m_slots.push_back(node);
    } else {
        slot = m_free.back();
        m_free.pop_back();
        m_slots[slot] = node;
    }
    node->m_grid = this;
    node->m_gridSlot = slot;
    ++m_count;
    for (Level& level : m_levels) {
        // Rebuilding at twice the load keeps insertion constant on average.
        if (m_slots.size() > level.buckets.size())
            Build(level);
        else
            Link(level, slot);
    }
    return true;
}

bool NodeGrid::Remove(CNodo* node) {
    if (!node || node->m_grid != this)
        return false;
    const std::uint32_t slot = node->m_gridSlot;
    for (Level& level : m_levels)
        Unlink(level, slot);
    m_slots[slot] = nullptr;
    m_free.push_back(slot);
    node->m_grid = nullptr;
    --m_count;
    return true;
}

void NodeGrid::Move(CNodo* node, const CFPoint& point) {
    if (!point.IsFinite()) {
        Remove(node);
        node->m_point = point;
        return;
    }
    for (Level& level : m_levels)
        Unlink(level, node->m_gridSlot);
    node->m_point = point;
    for (Level& level : m_levels)
        Link(level, node->m_gridSlot);
}

void NodeGrid::Link(Level& level, std::uint32_t slot) const {
    if (level.links.size() <= slot)
        level.links.resize(m_slots.capacity() > slot ? m_slots.capacity() : slot + 1);
    const CFPoint& p = m_slots[slot]->m_point;
    const std::uint32_t hash =
        HashCell(CellAt(p.x, level.perUnit), CellAt(p.y, level.perUnit), CellAt(p.z, level.perUnit));
    const std::size_t bucket = BucketOf(hash, level.buckets.size());
    const std::uint32_t head = level.buckets[bucket];
    // The hash is remembered: a search passes nodes of other cells without looking at them, and the node's coordinates
    // may have been written past the grid when it leaves.
    level.links[slot] = {head, noLink, hash};
    if (head != noLink)
        level.links[head].previous = slot;
    level.buckets[bucket] = slot;
}

void NodeGrid::Unlink(Level& level, std::uint32_t slot) {
    const Level::Link gone = level.links[slot];
    if (gone.previous != noLink)
        level.links[gone.previous].next = gone.next;
    else
        level.buckets[BucketOf(gone.hash, level.buckets.size())] = gone.next;
    if (gone.next != noLink)
        level.links[gone.next].previous = gone.previous;
    level.links[slot] = {};
}

void NodeGrid::Build(Level& level) const {
    const std::size_t size = std::bit_ceil(std::max<std::size_t>(m_slots.size() * 2, 64));
    level.buckets.assign(size, noLink);
    level.links.assign(m_slots.size(), {});
    for (std::size_t slot = 0; slot < m_slots.size(); ++slot)
        if (m_slots[slot])
            Link(level, static_cast<std::uint32_t>(slot));
}

NodeGrid::Level& NodeGrid::LevelFor(double tolerance) const {
    const double least = std::max(tolerance, smallestCell);
    Level* oldest = nullptr;
    for (Level& level : m_levels) {
        if (level.cell >= 2 * least && level.cell <= 16 * least) {
            level.used = ++m_clock;
            return level;
        }
        if (!oldest || level.used < oldest->used)
            oldest = &level;
    }
    if (m_levels.size() < maxLevels) {
        m_levels.emplace_back();
        oldest = &m_levels.back();
    }
    oldest->cell = std::exp2(std::ceil(std::log2(least)) + 2);
    oldest->perUnit = 1 / oldest->cell;
    oldest->used = ++m_clock;
    Build(*oldest);
    return *oldest;
}

CNodo* NodeGrid::Find(const CFPoint& point, const CNodo* excluded, double tolerance) const {
    return Search(point, tolerance, [excluded](CNodo& node) { return &node != excluded; });
}

CNodo* NodeGrid::Find(const CFPoint& point, double tolerance, const std::function<bool(CNodo&)>& accepts) const {
    return Search(point, tolerance, accepts);
}

template <class Test>
CNodo* NodeGrid::Search(const CFPoint& point, double tolerance, const Test& accepts) const {
    if (m_count == 0 || !point.IsFinite() || !(tolerance >= 0) || !std::isfinite(tolerance))
        return nullptr;
    const Level& level = LevelFor(tolerance);
    const Span xs = SpanAround(point.x, tolerance, level.perUnit);
    const Span ys = SpanAround(point.y, tolerance, level.perUnit);
    const Span zs = SpanAround(point.z, tolerance, level.perUnit);
    CNodo* best = nullptr;
    double nearest = tolerance;
    for (int i = 0; i < xs.count; ++i)
        for (int j = 0; j < ys.count; ++j)
            for (int k = 0; k < zs.count; ++k) {
                const std::uint32_t hash = HashCell(xs.cells[i], ys.cells[j], zs.cells[k]);
                std::uint32_t slot = level.buckets[BucketOf(hash, level.buckets.size())];
                for (; slot != noLink; slot = level.links[slot].next) {
                    if (level.links[slot].hash != hash)
                        continue;
                    CNodo* const node = m_slots[slot];
                    const double distance = (node->m_point - point).GetMod();
                    if (!(distance <= nearest) || !accepts(*node))
                        continue;
                    if (!best || distance < nearest || node->GetID() < best->GetID()) {
                        best = node;
                        nearest = distance;
                    }
                }
            }
    return best;
}
