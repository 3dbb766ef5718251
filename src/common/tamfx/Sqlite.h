#pragma once

#include "common/tamfx/Export.h"
#include "common/tamfx/Table.h"

#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

/** Access to SQLite databases. */
namespace TAMFx::DB {

/**
 * A connection to an SQLite database, and a lock that its users agree on.
 *
 * One object belongs to one thread at a time. Failures throw a DBException by value with SQLite's
 * message and result code.
 */
class TAMFX_EXPORT Sqlite
{
public:
    /** Without a connection, until Open(). */
    Sqlite();
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;

    /** Closes the connection and gives the lock back. */
    virtual ~Sqlite();

    /**
     * Opens a database for reading and writing, and creates the file if it is missing in an
     * existing directory. A connection that is open already is closed first. The flags have no
     * influence.
     * @return true; a failure throws.
     */
    virtual bool Open(const char* pszPath, int nFlags);

    /**
     * Runs one statement; blanks and comments around it are fine. With no statement or more than
     * one in the text it throws before anything runs.
     * @param nBusyTimeout how long to wait for another connection's lock, in microseconds,
     * rounded up to whole milliseconds; getTable waits as long as the last Execute
     * @return number of rows changed, 0 for a statement that changes none
     */
    virtual int Execute(const char* pszSql, int nBusyTimeout);

    /**
     * Runs one query and fills the table, which is emptied first. After a failure it holds the
     * rows read so far.
     */
    virtual void getTable(const char* pszSql, Data::Collection::Table& table);

    /**
     * Waits until no other object, in this process or another, holds the lock of this database
     * file, and takes it. The lock is a flock on the file "<database>-lock" beside the database.
     * A second Lock of the same object changes nothing. Throws when the database was never
     * opened or the lock file cannot be opened or locked.
     */
    virtual void Lock();

    /** Gives the lock back; harmless without one. */
    virtual void UnLock();

    /** Closes the connection; harmless without one. A lock stays until UnLock. */
    virtual void Close();

private:
    struct Finalizer
    {
        void operator()(sqlite3_stmt* pStatement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

    Statement prepare(const char* pszSql);
    bool step(sqlite3_stmt* pStatement);
    [[noreturn]] void fail() const;

    sqlite3* m_pConnection = nullptr;
    std::string m_strPath;       ///< real path of the database opened last
    int m_nLockFile = -1;        ///< descriptor of the lock file while the lock is held
    int m_nBusyTimeout = 200000; ///< microseconds
};

} // namespace TAMFx::DB
