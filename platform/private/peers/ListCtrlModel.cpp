#include "platform/private/peers/ListCtrlModel.h"

#include "platform/controls/ListCtrl.h"
#include "platform/private/paint/Icons.h"
#include "platform/private/peers/WindowPeer.h"

#include <algorithm>
#include <utility>

namespace platform {

int ListCtrlModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

int ListCtrlModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(1, Columns());
}

QVariant ListCtrlModel::data(const QModelIndex& index, int role) const {
    const Row* found = RowAt(index.row());
    if (!found)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return ToQString(Text(index.row(), index.column()));
    case Qt::DecorationRole:
        return index.column() == 0 && m_images && found->image >= 0 ? IconAt(m_images, found->image) : QVariant();
    case Qt::TextAlignmentRole: {
        const auto column = static_cast<std::size_t>(index.column());
        const int format = column < m_columns.size() ? m_columns[column].format : LVCFMT_LEFT;
        const Qt::Alignment side = format == LVCFMT_RIGHT    ? Qt::AlignRight
                                   : format == LVCFMT_CENTER ? Qt::AlignHCenter
                                                             : Qt::AlignLeft;
        return QVariant::fromValue(side | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QVariant ListCtrlModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = static_cast<std::size_t>(section);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || column >= m_columns.size())
        return {};
    return ToQString(m_columns[column].heading);
}

Qt::ItemFlags ListCtrlModel::flags(const QModelIndex&) const {
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

const CString& ListCtrlModel::Text(int index, int column) const {
    static const CString none;
    const Row* found = RowAt(index);
    const bool has = found && column >= 0 && static_cast<std::size_t>(column) < found->texts.size();
    return has ? found->texts[static_cast<std::size_t>(column)] : none;
}

void ListCtrlModel::InsertRowAt(int index, Row row) {
    beginInsertRows({}, index, index);
    m_rows.Insert(index, std::move(row));
    m_noneBefore += m_noneBefore >= index;
    endInsertRows();
}

void ListCtrlModel::RemoveRowAt(int index) {
    beginRemoveRows({}, index, index);
    m_selectedCount -= m_rows.At(index).selected;
    m_rows.Erase(index);
    m_noneBefore -= m_noneBefore > index;
    endRemoveRows();
}

void ListCtrlModel::Clear() {
    beginResetModel();
    m_rows.Clear();
    m_selectedCount = m_noneBefore = 0;
    endResetModel();
}

// The walk over all selected rows looks at each row once; so does asking again and again for the first one while the
// selection moves on.
int ListCtrlModel::NextSelected(int after) const {
    if (m_selectedCount == 0)
        return -1;
    const bool first = after < m_noneBefore;
    int row = first ? m_noneBefore : after + 1;
    while (row < Count() && !m_rows.At(row).selected)
        ++row;
    if (first)
        m_noneBefore = row;
    return row < Count() ? row : -1;
}

void ListCtrlModel::SetSelected(int row, bool selected) {
    Row& changed = m_rows.At(row);
    m_selectedCount += int{selected} - int{changed.selected};
    changed.selected = selected;
    if (selected)
        m_noneBefore = std::min(m_noneBefore, row);
}

bool ListCtrlModel::SetText(int row, int column, const CString& text) {
    if (!RowAt(row) || column < 0 || column >= columnCount())
        return false;
    std::vector<CString>& texts = m_rows.At(row).texts;
    if (texts.size() <= static_cast<std::size_t>(column))
        texts.resize(static_cast<std::size_t>(column) + 1);
    texts[static_cast<std::size_t>(column)] = text;
    emit dataChanged(index(row, column), index(row, column));
    return true;
}

void ListCtrlModel::SetImages(const CImageList* images) {
    m_images = images;
    if (Count() > 0)
        emit dataChanged(index(0, 0), index(Count() - 1, 0));
}

void ListCtrlModel::InsertColumnAt(int index, Column column) {
    // The first heading names the column that is there already.
    const bool first = m_columns.empty();
    if (!first)
        beginInsertColumns({}, index, index);
    m_columns.insert(m_columns.begin() + index, std::move(column));
    for (int row = 0; row < Count(); ++row)
        if (std::vector<CString>& texts = m_rows.At(row).texts;
            !first && texts.size() > static_cast<std::size_t>(index))
            texts.insert(texts.begin() + index, CString());
    if (first)
        emit headerDataChanged(Qt::Horizontal, 0, 0);
    else
        endInsertColumns();
}

} // namespace platform
