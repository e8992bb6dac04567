// Looking nodes up by place, drawing, and the project file, each beside the plainest way to do the same.
#include "benchmarks/Models.h"
#include "benchmarks/Ratios.h"
#include "host/document/HostDocument.h"
#include "host/files/ProjectFile.h"
#include "host/view/ViewRenderer.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "model/view/Adv3d.h"
#include "platform/toolkit/PainterDC.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <unordered_map>

using namespace host;

namespace {

constexpr int million = 1'000'000;

constexpr int lookUps = 100'000;
constexpr double tolerance = 0.001;

// Half of the places hold a node, half lie beside one.
std::vector<CFPoint> PlacesIn(HostDocument& document) {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> index(0, document.GetSizeNodi() - 1);
    std::vector<CFPoint> places;
    for (int i = 0; i < lookUps; ++i) {
        CFPoint place = *document.GetIndexNodo(index(random))->GetPunto();
        place.x += i % 2 ? 0.4 : 1e-5;
        places.push_back(place);
    }
    return places;
}

void CheckFound(int found) {
    if (found == lookUps / 2)
        return;
    std::fprintf(stderr, "bench: %d nodes found instead of %d\n", found, lookUps / 2);
    std::exit(1);
}

void LookUp(benchmark::State& state) {
    HostDocument document;
    bench::FillGrid(document, million);
    std::vector<CFPoint> places = PlacesIn(document);
    document.GetNodo(places.front(), nullptr, tolerance); // builds the table, as the map is built before it is timed
    for (auto _ : state) {
        int found = 0;
        for (CFPoint& place : places)
            found += document.GetNodo(place, nullptr, tolerance) != nullptr;
        CheckFound(found);
    }
}

struct Cell {
    long x, y, z;
    explicit Cell(const CFPoint& place)
        : x(std::lround(place.x / tolerance)),
          y(std::lround(place.y / tolerance)),
          z(std::lround(place.z / tolerance)) {}
    bool operator==(const Cell&) const = default;
};

struct CellHash {
    std::size_t operator()(const Cell& cell) const {
        std::size_t hash = 0;
        for (const long number : {cell.x, cell.y, cell.z})
            hash ^= std::hash<long>()(number) + 0x9e3779b97f4a7c15u + (hash << 6) + (hash >> 2);
        return hash;
    }
};

// Nodes by their coordinates rounded to the tolerance, which misses those beyond the border of the one cell asked for.
void LookUpRounded(benchmark::State& state) {
    HostDocument document;
    bench::FillGrid(document, million);
    std::unordered_map<Cell, CNodo*, CellHash> map;
    for (int i = 0; i < document.GetSizeNodi(); ++i)
        map.emplace(*document.GetIndexNodo(i)->GetPunto(), document.GetIndexNodo(i));
    std::vector<CFPoint> places = PlacesIn(document);
    for (auto _ : state) {
        int found = 0;
        for (const CFPoint& place : places)
            found += map.contains(Cell(place));
        CheckFound(found);
    }
}

constexpr int drawnElements = 100'000;
constexpr int side = 1000;

void ShowAll(HostDocument& document, Adv3d& vista) {
    vista.SetViewport(CRect(0, 0, side, side));
    CFPoint low;
    CFPoint high;
    GetBounds(document, low, high);
    vista.FitToBounds(low, high);
}

void DrawOurs(benchmark::State& state) {
    HostDocument document;
    bench::FillGrid(document, drawnElements);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    Adv3d vista;
    ShowAll(document, vista);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        platform::PainterDC dc(painter);
        DrawModel(document, vista, dc);
    }
}

// The same lines and the same marks of the nodes, projected and handed to the painter without any model behind them.
void DrawPolylines(benchmark::State& state) {
    HostDocument document;
    bench::FillGrid(document, drawnElements);
    std::vector<CFPoint> ends;
    for (int i = 0; i < document.GetSizeTravi(); ++i) {
        ends.push_back(*document.GetIndexTrave(i)->GetNodoIniziale()->GetPunto());
        ends.push_back(*document.GetIndexTrave(i)->GetNodoFinale()->GetPunto());
    }
    std::vector<CFPoint> nodes;
    for (int i = 0; i < document.GetSizeNodi(); ++i)
        nodes.push_back(*document.GetIndexNodo(i)->GetPunto());
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    Adv3d vista;
    ShowAll(document, vista);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(QPen(Qt::blue, 1));
        for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
            const Adv3d::Punto a = vista.Project(ends[i]);
            const Adv3d::Punto b = vista.Project(ends[i + 1]);
            const QPoint line[] = {{static_cast<int>(a.x), static_cast<int>(a.y)},
                                   {static_cast<int>(b.x), static_cast<int>(b.y)}};
            painter.drawPolyline(line, 2);
        }
        painter.setPen(QPen(Qt::black, 1));
        for (const CFPoint& node : nodes) {
            const Adv3d::Punto p = vista.Project(node);
            const int x = static_cast<int>(p.x);
            const int y = static_cast<int>(p.y);
            const QPoint square[] = {{x - 2, y - 2}, {x + 2, y - 2}, {x + 2, y + 2}, {x - 2, y + 2}, {x - 2, y - 2}};
            painter.drawPolyline(square, 5);
        }
    }
}

constexpr int filedNodes = million / 2; // and as many beams

struct TemporaryFile {
    QTemporaryDir folder;
    std::string path = folder.filePath("modello.asg").toStdString();
};

void SaveOurs(benchmark::State& state) {
    const DocumentData data = bench::MakeGrid(filedNodes);
    const TemporaryFile file;
    for (auto _ : state)
        SaveProject(data, file.path, "bench");
}

void OpenOurs(benchmark::State& state) {
    const TemporaryFile file;
    SaveProject(bench::MakeGrid(filedNodes), file.path, "bench");
    for (auto _ : state)
        benchmark::DoNotOptimize(LoadProject(file.path));
}

// Rows of the same numbers in two plain tables.
void SaveRows(const std::string& path, const DocumentData& data) {
    std::remove(path.c_str());
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    sqlite3_exec(
        database,
        "CREATE TABLE nodi(id INTEGER PRIMARY KEY, x REAL, y REAL, z REAL);"
        "CREATE TABLE travi(id INTEGER PRIMARY KEY, a INTEGER, b INTEGER, m INTEGER, s INTEGER, beta REAL);BEGIN",
        nullptr, nullptr, nullptr);
    sqlite3_stmt* row = nullptr;
    sqlite3_prepare_v2(database, "INSERT INTO nodi VALUES(?,?,?,?)", -1, &row, nullptr);
    for (int i = 0; i < data.Size(Kind::Node); ++i) {
        CNodo* node = data.Node(i);
        sqlite3_bind_int(row, 1, node->GetID());
        sqlite3_bind_double(row, 2, node->GetPunto()->x);
        sqlite3_bind_double(row, 3, node->GetPunto()->y);
        sqlite3_bind_double(row, 4, node->GetPunto()->z);
        sqlite3_step(row);
        sqlite3_reset(row);
    }
    sqlite3_finalize(row);
    sqlite3_prepare_v2(database, "INSERT INTO travi VALUES(?,?,?,?,?,?)", -1, &row, nullptr);
    for (int i = 0; i < data.Size(Kind::Beam); ++i) {
        auto* beam = data.As<CTrave>(Kind::Beam, i);
        const int values[] = {beam->GetID(), beam->GetIDNodoIniziale(), beam->GetIDNodoFinale(), beam->GetIDMateriale(),
                              beam->GetIDSezione()};
        for (int column = 0; column < 5; ++column)
            sqlite3_bind_int(row, column + 1, values[column]);
        sqlite3_bind_double(row, 6, beam->GetBeta());
        sqlite3_step(row);
        sqlite3_reset(row);
    }
    sqlite3_finalize(row);
    sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(database);
}

void SaveTheirs(benchmark::State& state) {
    const DocumentData data = bench::MakeGrid(filedNodes);
    const TemporaryFile file;
    for (auto _ : state)
        SaveRows(file.path, data);
}

// Reads the rows back into plain records: no objects, no checks.
void OpenTheirs(benchmark::State& state) {
    struct Node {
        int id;
        double x, y, z;
    };
    struct Beam {
        int values[5];
        double beta;
    };
    const TemporaryFile file;
    SaveRows(file.path, bench::MakeGrid(filedNodes));
    for (auto _ : state) {
        sqlite3* database = nullptr;
        sqlite3_open(file.path.c_str(), &database);
        sqlite3_stmt* row = nullptr;
        std::vector<Node> nodes;
        sqlite3_prepare_v2(database, "SELECT * FROM nodi", -1, &row, nullptr);
        while (sqlite3_step(row) == SQLITE_ROW)
            nodes.push_back({sqlite3_column_int(row, 0), sqlite3_column_double(row, 1), sqlite3_column_double(row, 2),
                             sqlite3_column_double(row, 3)});
        sqlite3_finalize(row);
        std::vector<Beam> beams;
        sqlite3_prepare_v2(database, "SELECT * FROM travi", -1, &row, nullptr);
        while (sqlite3_step(row) == SQLITE_ROW) {
            Beam beam{};
            for (int column = 0; column < 5; ++column)
                beam.values[column] = sqlite3_column_int(row, column);
            beam.beta = sqlite3_column_double(row, 5);
            beams.push_back(beam);
        }
        sqlite3_finalize(row);
        sqlite3_close(database);
        benchmark::DoNotOptimize(nodes.data());
        benchmark::DoNotOptimize(beams.data());
    }
}

const bench::Ratio nodeLookUp("node_by_place_of_1000000", LookUp, LookUpRounded, 2);
const bench::Ratio draw("draw_100000_elements", DrawOurs, DrawPolylines, 1.5);
const bench::Ratio save("save_1000000_elements", SaveOurs, SaveTheirs, 2, benchmark::kSecond);
const bench::Ratio open("open_1000000_elements", OpenOurs, OpenTheirs, 2, benchmark::kSecond);

} // namespace
