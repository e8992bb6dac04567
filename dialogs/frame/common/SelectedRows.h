// Lists of several selections.
#pragma once

#include <vector>

class CListBox;

// The selected rows, in the order of the list.
std::vector<int> SelectedRows(const CListBox& list);
