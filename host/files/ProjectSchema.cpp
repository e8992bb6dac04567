#include "host/files/ProjectSchema.h"

#include "host/files/FileError.h"

#include <cmath>

namespace host {

namespace {

// Calls the function with the name and the letter of each column.
template <class Function>
void ForEachColumn(const Table& table, Function function) {
    std::string_view rest = table.columns;
    while (!rest.empty()) {
        const std::size_t blank = rest.find(' ');
        function(rest.substr(0, blank), rest[blank + 1]);
        rest.remove_prefix(std::min(blank + 4, rest.size())); // the letter, the comma and a blank
    }
}

std::string Names(const Table& table) {
    std::string names;
    ForEachColumn(table, [&](std::string_view name, char) {
        names += names.empty() ? "" : ", ";
        names += name;
    });
    return names;
}

std::string InsertSql(const Table& table) {
    std::string marks;
    ForEachColumn(table, [&](std::string_view, char) { marks += marks.empty() ? "?" : ", ?"; });
    return std::string("INSERT INTO ") + table.name + "(" + Names(table) + ") VALUES(" + marks + ")";
}

} // namespace

std::string CreationSql(const Table& table) {
    std::string sql = std::string("CREATE TABLE ") + table.name + "(pos INTEGER PRIMARY KEY";
    ForEachColumn(table, [&](std::string_view name, char letter) {
        sql += ", ";
        sql += name;
        sql += letter == 'I' ? " INTEGER NOT NULL" : letter == 'R' ? " REAL NOT NULL" : " TEXT NOT NULL";
    });
    return sql + ")";
}

RowWriter::RowWriter(Database& database, const Table& table, int& rows)
    : m_table(table), m_statement(database, InsertSql(table)), m_rows(rows) {
}

RowWriter& RowWriter::Put(double value) {
    if (!std::isfinite(value))
        throw FileError(std::string("Tabella ") + m_table.name +
                        ": un valore è troppo grande per essere salvato."_utf8);
    m_statement.Bind(++m_column, value);
    return *this;
}

RowWriter& RowWriter::Put(const CString& value) {
    std::string& text = m_texts[m_text++];
    text = value.ToUtf8();
    m_statement.Bind(++m_column, std::string_view(text));
    return *this;
}

void RowWriter::End() {
    m_statement.Insert();
    m_text = m_column = 0;
    ++m_rows;
}

RowReader::RowReader(Database& database, const Table& table)
    : m_table(table), m_statement(database, "SELECT pos, " + Names(table) + " FROM " + table.name + " ORDER BY pos") {
}

bool RowReader::Next() {
    ++m_row;
    m_column = 0;
    if (!m_statement.Step())
        return false;
    if (m_statement.Integer(0) != m_row)
        Fail("la riga manca o è ripetuta."_utf8);
    return true;
}

void RowReader::Fail(const std::string& message) const {
    throw FileError(std::string("Tabella ") + m_table.name + ", riga " + std::to_string(m_row) + ": " + message);
}

int RowReader::Int(int lowest, int highest) {
    ++m_column;
    std::int64_t value = 0;
    if (!m_statement.GetInteger(m_column, value))
        Fail("atteso un numero intero.");
    if (value < lowest || value > highest)
        Fail("il numero " + std::to_string(value) + " non è ammesso."_utf8);
    return static_cast<int>(value);
}

double RowReader::Real() {
    ++m_column;
    double value = 0;
    if (!m_statement.GetReal(m_column, value))
        Fail("atteso un numero.");
    if (!std::isfinite(value))
        Fail("atteso un numero finito.");
    return value;
}

double RowReader::Real(double lowest, double highest) {
    const double value = Real();
    if (value < lowest || value > highest)
        Fail("un valore è fuori dai limiti."_utf8);
    return value;
}

CString RowReader::Text() {
    ++m_column;
    if (!m_statement.IsText(m_column))
        Fail("atteso un testo.");
    return CString::FromUtf8(m_statement.Text(m_column));
}

} // namespace host
