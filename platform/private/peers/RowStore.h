// The rows of a list. They lie in blocks, so that putting one in or taking one out moves the rows of its block and not
// all that follow: a sorted list of a hundred thousand fills as fast as its texts are compared.
#pragma once

#include "platform/core/String.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

template <class Row>
class RowStore {
  public:
    int Count() const { return m_count; }
    bool Has(int index) const { return index >= 0 && index < m_count; }

    // The row must be there.
    Row& At(int index) {
        Block& block = m_blocks[BlockOf(index)];
        return block.rows[static_cast<std::size_t>(index - block.first)];
    }
    const Row& At(int index) const { return const_cast<RowStore&>(*this).At(index); }

    void Insert(int index, Row row) { // 0 <= index <= Count()
        const std::size_t at = BlockFor(index);
        Block& block = m_blocks[at];
        block.rows.insert(block.rows.begin() + (index - block.first), std::move(row));
        Shift(at + 1, 1);
    }

    void Erase(int index) { // the row must be there
        const std::size_t at = BlockOf(index);
        Block& block = m_blocks[at];
        block.rows.erase(block.rows.begin() + (index - block.first));
        Shift(at + 1, -1);
        if (block.rows.empty())
            m_blocks.erase(m_blocks.begin() + static_cast<std::ptrdiff_t>(at));
    }

    void Clear() {
        m_blocks.clear();
        m_count = 0;
    }

  private:
    struct Block {
        int first; // index of its first row
        std::vector<Row> rows;
    };
    static constexpr std::size_t capacity = 128;

    // The last one that begins at the index or before it.
    std::size_t BlockOf(int index) const {
        const auto next = std::upper_bound(m_blocks.begin(), m_blocks.end(), index,
                                           [](int wanted, const Block& block) { return wanted < block.first; });
        return static_cast<std::size_t>(next - m_blocks.begin()) - 1;
    }

    // One that begins at the index or before it and has room.
    std::size_t BlockFor(int index) {
        if (m_blocks.empty())
            m_blocks.push_back({0, {}});
        const std::size_t at = BlockOf(index);
        Block& block = m_blocks[at];
        if (block.rows.size() < capacity)
            return at;
        // Rows that come in their order leave full blocks behind; anywhere else a full block becomes two halves.
        const std::size_t kept = index == m_count ? capacity : capacity / 2;
        const auto middle = block.rows.begin() + static_cast<std::ptrdiff_t>(kept);
        Block rest{block.first + static_cast<int>(kept), {}};
        rest.rows.assign(std::make_move_iterator(middle), std::make_move_iterator(block.rows.end()));
        block.rows.erase(middle, block.rows.end());
        const bool behind = index >= rest.first;
        m_blocks.insert(m_blocks.begin() + static_cast<std::ptrdiff_t>(at) + 1, std::move(rest));
        return behind ? at + 1 : at;
    }

    void Shift(std::size_t from, int rows) {
        for (; from < m_blocks.size(); ++from)
            m_blocks[from].first += rows;
        m_count += rows;
    }

    std::vector<Block> m_blocks; // none is empty between two calls
    int m_count = 0;
};

// The first of `count` texts behind `startAfter` that begins with the prefix, without regard to case and going round;
// -1 for none. A place outside starts at the top. `textAt(index)` gives a CString.
template <class TextAt>
int FindPrefix(int count, int startAfter, const CString& prefix, TextAt textAt) {
    const std::string_view wanted = prefix.View();
    const int start = startAfter >= 0 && startAfter < count ? startAfter : -1;
    for (int step = 1; step <= count; ++step) {
        const int index = (start + step) % count;
        const std::string_view text = textAt(index).View();
        if (text.size() >= wanted.size() && CompareNoCase(text.substr(0, wanted.size()), wanted) == 0)
            return index;
    }
    return -1;
}

// Where a text belongs among `count` sorted ones: behind all that are not greater, without regard to case.
// `textAt(index)` gives a text that std::string_view takes.
template <class TextAt>
int SortedPlace(int count, const CString& text, TextAt textAt) {
    int low = 0;
    int high = count;
    while (low < high) {
        // Texts that arrive in their order find their place with the first look.
        const int middle = high == count && low == 0 ? count - 1 : low + (high - low) / 2;
        if (CompareNoCase(textAt(middle).View(), text.View()) <= 0)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

} // namespace platform
