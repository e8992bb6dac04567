// The database library behind two small owning classes. Texts are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace host {

// An open database, closed with the object. Every failure throws FileError.
class Database {
  public:
    enum class Mode {
        // An untrusted file: read only, never locked or recovered, nothing in its schema is run.
        ReadUntrusted,
        // A file that this process has just made and nobody else knows yet: no journal, no waiting for the disk.
        WritePrivate,
    };

    Database(const std::string& path, Mode mode);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void Execute(const char* sql);
    std::int64_t Pragma(const char* name); // the number a pragma answers

    sqlite3* Handle() const { return m_db; }
    [[noreturn]] void Fail() const; // throws what the library says of the last failure

  private:
    void Close();

    sqlite3* m_db = nullptr;
};

// A prepared statement. Binds are numbered from 1, columns from 0.
class Statement {
  public:
    Statement(Database& database, const std::string& sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& Bind(int index, int value);
    Statement& Bind(int index, std::int64_t value);
    Statement& Bind(int index, double value);
    Statement& Bind(int index, std::string_view value); // the text must live until Insert or Step

    bool Step();   // to the next row; false after the last
    void Insert(); // runs a statement without rows and makes it ready for the next binds

    // False when the value is not of that kind; an integer counts as a real.
    bool GetInteger(int column, std::int64_t& value) const;
    bool GetReal(int column, double& value) const;
    bool IsText(int column) const;
    std::int64_t Integer(int column) const;
    double Real(int column) const;
    std::string_view Text(int column) const; // valid until the next Step

  private:
    void Check(int result) const;

    Database& m_database;
    sqlite3_stmt* m_statement = nullptr;
};

} // namespace host
