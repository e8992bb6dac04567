#include "dialogs/frame/common/SelectedRows.h"

#include "platform/controls/ListBox.h"

#include <algorithm>

std::vector<int> SelectedRows(const CListBox& list) {
    std::vector<int> rows(static_cast<std::size_t>(std::max(list.GetSelCount(), 0)));
    if (!rows.empty())
        list.GetSelItems(static_cast<int>(rows.size()), rows.data());
    return rows;
}
