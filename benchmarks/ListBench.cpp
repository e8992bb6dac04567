// A list of 100,000 rows: filling it, and selecting and walking every second one, beside a lazy model of the toolkit.
#include "benchmarks/BenchDialogs.h"
#include "benchmarks/Ratios.h"
#include "platform/Application.h"
#include "platform/ListBox.h"

#include <QAbstractListModel>
#include <QItemSelection>
#include <QListView>

#include <vector>

namespace {

constexpr int Rows = 100'000;

CString rowText(int row) {
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
    void fill() {
        beginResetModel();
        rows.clear();
        for (int row = 0; row < Rows; ++row)
            rows.push_back(QString::asprintf("Nodo n.ro %d", row));
        endResetModel();
    }
};

void fill(CListBox& list) {
    list.ResetContent();
    for (int row = 0; row < Rows; ++row)
        list.AddString(rowText(row));
}

void fillOurs(benchmark::State& state) {
    bench::ListDialog dialog;
    for (auto _ : state) {
        fill(dialog.list);
        CWinApp::PumpMessages(); // until the rows are on the screen
    }
}

void fillTheirs(benchmark::State& state) {
    QListView view;
    LazyModel model;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    view.show();
    for (auto _ : state) {
        model.fill();
        CWinApp::PumpMessages();
    }
}

void selectEverySecond(benchmark::State& state) {
    bench::ListDialog dialog;
    fill(dialog.list);
    CWinApp::PumpMessages();
    for (auto _ : state) {
        for (int row = 0; row < Rows; row += 2)
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

const bench::Ratio fillRatio("list_fill_100000", fillOurs, fillTheirs, 2);
const bench::Limit selectLimit("list_select_every_second_of_100000", selectEverySecond, 20);

} // namespace
