#include "host/files/Sqlite.h"

#include "host/files/FileError.h"
#include "platform/core/String.h"

#include <sqlite3.h>

namespace host {

namespace {

// In bytes. No row of a project is longer: a file that claims one is not ours, and none is written that could not be
// read again.
constexpr int longestRow = 1 << 20;

// A path as a database address: what the address syntax gives a meaning to is escaped.
std::string Address(const std::string& path, const char* options) {
    static const char digits[] = "0123456789ABCDEF";
    std::string address = "file:";
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '%' || character == '?' || character == '#' || byte < 0x20) {
            address += '%';
            address += digits[byte >> 4];
            address += digits[byte & 15];
        } else {
            address += character;
        }
    }
    return address + options;
}

void Distrust(sqlite3* db) {
    sqlite3_db_config(db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
}

} // namespace

Database::Database(const std::string& path, Mode mode) {
    const bool reading = mode == Mode::ReadUntrusted;
    // Project files are replaced, never changed in place: a journal lying beside one is not its own and is not
    // played back, which is what "immutable" asks for.
    const std::string address = Address(path, reading ? "?immutable=1" : "");
    // One thread, one connection: no lock around every value read.
    const int flags = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI |
                      (reading ? SQLITE_OPEN_READONLY : (SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE));
    try {
        if (sqlite3_open_v2(address.c_str(), &m_db, flags, nullptr) != SQLITE_OK)
            Fail();
        sqlite3_limit(m_db, SQLITE_LIMIT_LENGTH, longestRow);
        if (reading) {
            Distrust(m_db);
        } else {
            Execute("PRAGMA journal_mode = OFF");
            Execute("PRAGMA synchronous = OFF");
            Execute("PRAGMA locking_mode = EXCLUSIVE");
        }
    } catch (...) {
        Close();
        throw;
    }
}

Database::~Database() {
    Close();
}

void Database::Close() {
    sqlite3_close(m_db);
    m_db = nullptr;
}

void Database::Fail() const {
    if (!m_db)
        throw FileError("Memoria insufficiente.");
    switch (sqlite3_errcode(m_db) & 0xff) {
    case SQLITE_NOTADB:
        throw FileError("Il file non è un progetto."_utf8);
    case SQLITE_CORRUPT:
        throw FileError("Il file è danneggiato o incompleto."_utf8);
    case SQLITE_CANTOPEN:
        throw FileError("Impossibile aprire il file.");
    case SQLITE_FULL:
        throw FileError("Spazio su disco esaurito.");
    case SQLITE_NOMEM:
        throw FileError("Memoria insufficiente.");
    case SQLITE_IOERR:
        throw FileError("Errore di lettura o scrittura del disco.");
    case SQLITE_TOOBIG:
        throw FileError("Il file contiene un dato troppo grande.");
    default:
        throw FileError(std::string("Errore nel file: ") + sqlite3_errmsg(m_db));
    }
}

void Database::Execute(const char* sql) {
    if (sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        Fail();
}

std::int64_t Database::Pragma(const char* name) {
    Statement statement(*this, std::string("PRAGMA ") + name);
    return statement.Step() ? statement.Integer(0) : 0;
}

Statement::Statement(Database& database, const std::string& sql) : m_database(database) {
    if (sqlite3_prepare_v2(database.Handle(), sql.c_str(), static_cast<int>(sql.size()) + 1, &m_statement, nullptr) !=
        SQLITE_OK)
        database.Fail();
}

Statement::~Statement() {
    sqlite3_finalize(m_statement);
}

void Statement::Check(int result) const {
    if (result != SQLITE_OK)
        m_database.Fail();
}

Statement& Statement::Bind(int index, int value) {
    Check(sqlite3_bind_int(m_statement, index, value));
    return *this;
}

Statement& Statement::Bind(int index, std::int64_t value) {
    Check(sqlite3_bind_int64(m_statement, index, value));
    return *this;
}

Statement& Statement::Bind(int index, double value) {
    Check(sqlite3_bind_double(m_statement, index, value));
    return *this;
}

Statement& Statement::Bind(int index, std::string_view value) {
    Check(sqlite3_bind_text(m_statement, index, value.data() ? value.data() : "", static_cast<int>(value.size()),
                            SQLITE_STATIC));
    return *this;
}

bool Statement::Step() {
    const int result = sqlite3_step(m_statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        m_database.Fail();
    return result == SQLITE_ROW;
}

void Statement::Insert() {
    Step();
    Check(sqlite3_reset(m_statement));
}

// One look at the value for its kind and its content: a project has millions of them. Values may be used so on a
// connection without locks.
bool Statement::GetInteger(int column, std::int64_t& value) const {
    sqlite3_value* stored = sqlite3_column_value(m_statement, column);
    if (sqlite3_value_type(stored) != SQLITE_INTEGER)
        return false;
    value = sqlite3_value_int64(stored);
    return true;
}

bool Statement::GetReal(int column, double& value) const {
    sqlite3_value* stored = sqlite3_column_value(m_statement, column);
    const int type = sqlite3_value_type(stored);
    if (type != SQLITE_FLOAT && type != SQLITE_INTEGER)
        return false;
    value = sqlite3_value_double(stored);
    return true;
}

bool Statement::IsText(int column) const {
    return sqlite3_column_type(m_statement, column) == SQLITE_TEXT;
}

std::int64_t Statement::Integer(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

double Statement::Real(int column) const {
    return sqlite3_column_double(m_statement, column);
}

std::string_view Statement::Text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    return {text ? text : "", static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column))};
}

} // namespace host
