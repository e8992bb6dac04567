// A list of 100,000 rows: filling it, and selecting and walking every second one, beside a lazy model of the toolkit.
#include "benchmarks/BenchDialogs.h"
#include "benchmarks/Ratios.h"
#include "platform/controls/ListBox.h"
#include "platform/window/Application.h"

#include <QAbstractListModel>
#include <QItemSelection>
#include <QListView>

#include <vector>

namespace {

constexpr int listRows = 100'000;

CString RowText(int row) {
    CString text;
    text.Format("Nodo n.ro %d", row);
    return text;
}

class LazyModel : public QAbstractListModel {
  public:
    std::vector<QString> rows;

    int rowCount(const QModelIndex&) const override { return static_cast<int>(rows.size()); }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? QVariant(rows[static_cast<std::size_t>(index.row())]) : QVariant();
    }
    void Fill() {
        beginResetModel();
        rows.clear();
        for (int row = 0; row < listRows; ++row)
            rows.push_back(QString::asprintf("Nodo n.ro %d", row));
        endResetModel();
    }
};

void Fill(CListBox& list) {
    list.ResetContent();
    for (int row = 0; row < listRows; ++row)
        list.AddString(RowText(row));
}

void FillOurs(benchmark::State& state) {
    bench::ListDialog dialog;
    for (auto _ : state) {
        Fill(dialog.list);
        CWinApp::PumpMessages(); // until the rows are on the screen
    }
}

void FillTheirs(benchmark::State& state) {
    QListView view;
    LazyModel model;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    view.show();
    for (auto _ : state) {
        model.Fill();
        CWinApp::PumpMessages();
    }
}

void SelectEverySecond(benchmark::State& state) {
    bench::ListDialog dialog;
    Fill(dialog.list);
    CWinApp::PumpMessages();
    for (auto _ : state) {
        for (int row = 0; row < listRows; row += 2)
            dialog.list.SetSel(row, TRUE);
        int sum = 0;
        for (int row = 0; row < dialog.list.GetCount(); ++row)
            if (dialog.list.GetSel(row) > 0)
                sum += row;
        benchmark::DoNotOptimize(sum);
        state.PauseTiming();
        dialog.list.SetSel(-1, FALSE);
        state.ResumeTiming();
    }
}

const bench::Ratio fillRatio("list_fill_100000", FillOurs, FillTheirs, 2);
const bench::Limit selectLimit("list_select_every_second_of_100000", SelectEverySecond, 20);

} // namespace
