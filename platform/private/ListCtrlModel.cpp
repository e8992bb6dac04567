#include "platform/private/ListCtrlModel.h"

#include "platform/ListCtrl.h"
#include "platform/private/Icons.h"
#include "platform/private/WindowPeer.h"

#include <algorithm>

namespace platform {

int ListCtrlModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

int ListCtrlModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(1, columns());
}

QVariant ListCtrlModel::data(const QModelIndex& index, int role) const {
    const Row* found = row(index.row());
    if (!found)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return toQString(text(index.row(), index.column()));
    case Qt::DecorationRole:
        return index.column() == 0 && m_images && found->image >= 0 ? iconAt(m_images, found->image) : QVariant();
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
    return toQString(m_columns[column].heading);
}

Qt::ItemFlags ListCtrlModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return editable && index.column() == 0 ? flags | Qt::ItemIsEditable : flags;
}

bool ListCtrlModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const CString text = fromQString(value.toString());
    if (role != Qt::EditRole || !acceptLabel || !acceptLabel(index.row(), text))
        return false;
    return setText(index.row(), index.column(), text);
}

const ListCtrlModel::Row* ListCtrlModel::row(int index) const {
    return index >= 0 && index < count() ? &m_rows[static_cast<std::size_t>(index)] : nullptr;
}

const CString& ListCtrlModel::text(int index, int column) const {
    static const CString none;
    const Row* found = row(index);
    const bool has = found && column >= 0 && static_cast<std::size_t>(column) < found->texts.size();
    return has ? found->texts[static_cast<std::size_t>(column)] : none;
}

void ListCtrlModel::insertRow(int index, Row row) {
    beginInsertRows({}, index, index);
    m_rows.insert(m_rows.begin() + index, std::move(row));
    endInsertRows();
}

void ListCtrlModel::removeRow(int index) {
    beginRemoveRows({}, index, index);
    m_rows.erase(m_rows.begin() + index);
    endRemoveRows();
}

void ListCtrlModel::clear() {
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

bool ListCtrlModel::setText(int row, int column, const CString& text) {
    if (!this->row(row) || column < 0 || column >= columnCount())
        return false;
    std::vector<CString>& texts = m_rows[static_cast<std::size_t>(row)].texts;
    if (texts.size() <= static_cast<std::size_t>(column))
        texts.resize(static_cast<std::size_t>(column) + 1);
    texts[static_cast<std::size_t>(column)] = text;
    emit dataChanged(index(row, column), index(row, column));
    return true;
}

bool ListCtrlModel::setRowData(int row, DWORD_PTR data) {
    if (!this->row(row))
        return false;
    m_rows[static_cast<std::size_t>(row)].data = data;
    return true;
}

bool ListCtrlModel::setImage(int row, int image) {
    if (!this->row(row))
        return false;
    m_rows[static_cast<std::size_t>(row)].image = image;
    emit dataChanged(index(row, 0), index(row, 0));
    return true;
}

void ListCtrlModel::setImages(const CImageList* images) {
    m_images = images;
    if (count() > 0)
        emit dataChanged(index(0, 0), index(count() - 1, 0));
}

void ListCtrlModel::reorder(const std::vector<int>& order) {
    beginResetModel();
    std::vector<Row> sorted;
    sorted.reserve(m_rows.size());
    for (const int former : order)
        sorted.push_back(std::move(m_rows[static_cast<std::size_t>(former)]));
    m_rows = std::move(sorted);
    endResetModel();
}

void ListCtrlModel::insertColumn(int index, Column column) {
    // The first heading names the column that is there already.
    const bool first = m_columns.empty();
    if (!first)
        beginInsertColumns({}, index, index);
    m_columns.insert(m_columns.begin() + index, std::move(column));
    for (Row& each : m_rows)
        if (!first && each.texts.size() > static_cast<std::size_t>(index))
            each.texts.insert(each.texts.begin() + index, CString());
    if (first)
        emit headerDataChanged(Qt::Horizontal, 0, 0);
    else
        endInsertColumns();
}

void ListCtrlModel::removeColumn(int index) {
    beginResetModel();
    m_columns.erase(m_columns.begin() + index);
    for (Row& each : m_rows)
        if (each.texts.size() > static_cast<std::size_t>(index))
            each.texts.erase(each.texts.begin() + index);
    endResetModel();
}

} // namespace platform
