// Rows and columns of a list view. The selection is the rows' own: the toolkit keeps it as a list of ranges, which many
// separate rows make slow.
#pragma once

#include "platform/controls/ImageList.h"
#include "platform/core/String.h"
#include "platform/private/peers/RowStore.h"

#include <QAbstractTableModel>

#include <vector>

namespace platform {

class ListCtrlModel final : public QAbstractTableModel {
  public:
    struct Row {
        std::vector<CString> texts; // by column; missing ones are empty
        int image = -1;
        bool selected = false;
    };
    struct Column {
        CString heading;
        int format = 0; // LVCFMT_
    };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    int Count() const { return m_rows.Count(); }
    const Row* RowAt(int index) const { return m_rows.Has(index) ? &m_rows.At(index) : nullptr; }
    const CString& Text(int row, int column) const;
    void InsertRowAt(int index, Row row);
    void RemoveRowAt(int index);
    void Clear();
    bool SetText(int row, int column, const CString& text);
    void SetImages(const CImageList* images);
    const CImageList* Images() const { return m_images; }

    bool Selected(int row) const { return m_rows.Has(row) && m_rows.At(row).selected; }
    int SelectedCount() const { return m_selectedCount; }
    int NextSelected(int after) const;        // -1 for none
    void SetSelected(int row, bool selected); // the row must be there; tells nobody, repaints nothing

    int Columns() const { return static_cast<int>(m_columns.size()); }
    void InsertColumnAt(int index, Column column);

  private:
    RowStore<Row> m_rows;
    int m_selectedCount = 0;
    mutable int m_noneBefore = 0;  // no row before this one is selected
    std::vector<Column> m_columns; // empty in a list without a heading, which has one column all the same
    const CImageList* m_images = nullptr;
};

} // namespace platform
