// The tables of a project file, and rows of them read and written in the order of their columns.
#pragma once

#include "host/files/Sqlite.h"
#include "platform/core/String.h"

#include <span>
#include <string>
#include <string_view>

namespace host {

inline constexpr int projectApplicationId = 0x51564152;
inline constexpr int projectFormat = 2; // what is written; raised with every change of the tables

// A table: its name and its columns, "I" integer, "R" real, "T" text. Every table also has the place of the row, `pos`,
// in front.
struct Table {
    const char* name;
    const char* columns; // "id I, nome T"
};

namespace tables {
inline constexpr Table project{"progetto", "titolo T, autore T, data T, note T, lunghezza I, forza I, tolleranza R, "
                                           "caso I, versione T, righe I"};
inline constexpr Table materials{"materiali", "id I, nome T, tipo T, e R, g R, poisson R, densita R, alfa R"};
inline constexpr Table sections{"sezioni", "id I, nome T, tipo T, area R, area2 R, area3 R, j R, i2 R, i3 R, w2 R, "
                                           "w3 R, base R, altezza R"};
inline constexpr Table thicknesses{"spessori", "id I, nome T, tipo T, spessore R"};
inline constexpr Table loadCases{"casi", "id I, nome T, tipo T"};
inline constexpr Table combinations{"combinazioni", "id I, nome T, tipo T"};
inline constexpr Table factors{"fattori", "combinazione I, caso I, fattore R"};
inline constexpr Table groups{"gruppi", "id I, nome T, tipo T"};
inline constexpr Table nodes{"nodi", "id I, x R, y R, z R, vincolo I, visibile I"};
inline constexpr Table springs{"molle", "nodo I, genere I, rigidezza R, dx R, dy R, dz R"};
inline constexpr Table beams{"travi", "id I, nodo1 I, nodo2 I, materiale I, sezione I, beta R, visibile I"};
inline constexpr Table trusses{"aste", "id I, nodo1 I, nodo2 I, materiale I, sezione I, beta R, visibile I"};
inline constexpr Table releases{"svincoli", "genere I, elemento I, id I, estremo I, n I, t I, m2 I, m3 I"};
inline constexpr Table walls{"setti", "id I, materiale I, spessore I, visibile I"};
inline constexpr Table slabs{"solai", "id I, materiale I, spessore I, visibile I"};
inline constexpr Table vertices{"vertici", "genere I, elemento I, nodo I"};
inline constexpr Table loads{"carichi", "caso I, id I, genere I, riferimento I, insieme I, v1 R, v2 R, v3 R, v4 R, "
                                        "v5 R, v6 R, v7 R, v8 R, v9 R, v10 R, v11 R, v12 R"};
inline constexpr Table loaded{"carichi_elementi", "genere I, elemento I, caso I, carico I"};
inline constexpr Table members{"gruppi_elementi", "gruppo I, genere I, elemento I"};
inline constexpr Table grid{"griglia", "visibile I, piano I, inclinazione R, x R, y R, z R, neg1 I, pos1 I, passo1 R, "
                                       "angolo1 R, neg2 I, pos2 I, passo2 R, angolo2 R, lunghezza I"};

// In the order in which they are made; a file of the format has exactly these. Tables of a format that was released
// never change: see docs/project-format.md.
inline constexpr const Table* format1[] = {
    &project, &materials, &sections, &thicknesses, &loadCases, &combinations, &factors, &groups, &nodes,  &springs,
    &beams,   &trusses,   &releases, &walls,       &slabs,     &vertices,     &loads,   &loaded, &members};
inline constexpr const Table* format2[] = {
    &project, &materials, &sections, &thicknesses, &loadCases, &combinations, &factors, &groups, &nodes,   &springs,
    &beams,   &trusses,   &releases, &walls,       &slabs,     &vertices,     &loads,   &loaded, &members, &grid};
inline constexpr std::span<const Table* const> current = format2; // of projectFormat
} // namespace tables

std::string CreationSql(const Table& table);

// Writes rows: the values in the order of the columns, then End.
class RowWriter {
  public:
    // Counts its rows in `rows`.
    RowWriter(Database& database, const Table& table, int& rows);

    RowWriter& Put(int value) {
        m_statement.Bind(++m_column, value);
        return *this;
    }
    RowWriter& Put(unsigned value) { return Put(static_cast<int>(value)); }
    // Throws FileError for a value that is not finite: saved, it would make the whole file unreadable.
    RowWriter& Put(double value);
    RowWriter& Put(const CString& value);        // a row has at most four texts
    RowWriter& PutUtf8(std::string_view value) { // must live until End
        m_statement.Bind(++m_column, value);
        return *this;
    }
    void End();

  private:
    const Table& m_table;
    Statement m_statement;
    int& m_rows;
    std::string m_texts[4]; // the database reads them at the end of the row
    int m_text = 0;
    int m_column = 0;
};

// Reads rows the same way. Their places count up from 1: a page of the file that was lost, or that damage shows twice
// or in a circle, is noticed at once. A value of the wrong kind, or outside what is asked for, throws FileError with
// the table and the row.
class RowReader {
  public:
    RowReader(Database& database, const Table& table);

    bool Next(); // false after the last row
    int Int(int lowest, int highest);
    int Id() { return Int(1, highestId); }
    int Reference() { return Int(0, highestId); } // 0 is "none"
    bool Flag() { return Int(0, 1) != 0; }
    double Real(); // finite
    double Real(double lowest, double highest);
    CString Text();
    // "Tabella travi, riga 12: " and the message.
    [[noreturn]] void Fail(const std::string& message) const;

    // New objects need numbers above those of the file.
    static constexpr int highestId = 1'000'000'000;

  private:
    const Table& m_table;
    Statement m_statement;
    int m_row = 0;
    int m_column = 0; // the place itself; the table's own columns follow
};

} // namespace host
