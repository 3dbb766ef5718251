#include "common/tamfx/Sqlite.h"

#include "common/tamfx/DBException.h"
#include "common/tamfx/FileAccess.h"

#include <cerrno>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace TAMFx::DB {

namespace {

constexpr mode_t modeOfLockFile = 0644;

/** SQLite counts in milliseconds; nobody waits less than was asked for. */
int milliseconds(int nMicroseconds)
{
    return nMicroseconds <= 0 ? 0 : (nMicroseconds - 1) / 1000 + 1;
}

} // namespace

void Sqlite::Finalizer::operator()(sqlite3_stmt* pStatement) const
{
    sqlite3_finalize(pStatement);
}

Sqlite::Sqlite() = default;

Sqlite::~Sqlite()
{
    Sqlite::UnLock();
    Sqlite::Close();
}

bool Sqlite::Open(const char* pszPath, int)
{
    Sqlite::Close();
    m_strPath.clear();
    // SQLite would make a database of its own for an empty name, and drop it at the end.
    if (!pszPath || !*pszPath)
        throw DBException("a database without a name", SQLITE_CANTOPEN);
    if (sqlite3_open_v2(pszPath, &m_pConnection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                        nullptr) != SQLITE_OK) {
        const DBException exception(sqlite3_errmsg(m_pConnection), sqlite3_errcode(m_pConnection));
        Sqlite::Close();
        throw exception;
    }
    m_strPath = Common::realPathOf(pszPath);
    return true;
}

int Sqlite::Execute(const char* pszSql, int nBusyTimeout)
{
    m_nBusyTimeout = nBusyTimeout;
    const Statement pStatement = prepare(pszSql);
    const int nBefore = sqlite3_total_changes(m_pConnection);
    while (step(pStatement.get())) {
    }
    // Only a statement that changes rows sets the count: others would give that of an earlier one.
    const bool bChanged = sqlite3_total_changes(m_pConnection) != nBefore;
    return bChanged ? sqlite3_changes(m_pConnection) : 0;
}

void Sqlite::getTable(const char* pszSql, Data::Collection::Table& table)
{
    table.Clear();
    const Statement pStatement = prepare(pszSql);
    // The columns are certain after the first step: it takes in what others did to the tables.
    bool bRow = step(pStatement.get());
    const int nColumns = sqlite3_column_count(pStatement.get());
    for (int i = 0; i < nColumns; ++i)
        table.addColumn(sqlite3_column_name(pStatement.get(), i));
    for (; bRow; bRow = step(pStatement.get())) {
        table.addRow();
        for (int i = 0; i < nColumns; ++i) {
            const unsigned char* pText = sqlite3_column_text(pStatement.get(), i);
            table.setValue(table.getRowCount() - 1, i, reinterpret_cast<const char*>(pText));
        }
    }
}

void Sqlite::Lock()
{
    if (m_nLockFile >= 0)
        return;
    if (m_strPath.empty())
        throw DBException("no database to lock", SQLITE_MISUSE);
    // A file of its own: to open and close the database a second time would drop SQLite's locks.
    const std::string strLockFile = m_strPath + "-lock";
    m_nLockFile = Common::openLocked(strLockFile, O_RDONLY | O_CREAT, modeOfLockFile);
    if (m_nLockFile < 0) {
        const std::string strReason = std::system_category().message(errno);
        const std::string strName = strLockFile.substr(strLockFile.rfind('/') + 1);
        throw DBException(("cannot lock " + strName + ": " + strReason).c_str(), SQLITE_CANTOPEN);
    }
}

void Sqlite::UnLock()
{
    if (m_nLockFile < 0)
        return;
    // Closing alone would leave the lock to a child process that was forked meanwhile.
    flock(m_nLockFile, LOCK_UN);
    close(m_nLockFile);
    m_nLockFile = -1;
}

void Sqlite::Close()
{
    sqlite3_close_v2(m_pConnection);
    m_pConnection = nullptr;
}

Sqlite::Statement Sqlite::prepare(const char* pszSql)
{
    if (!m_pConnection)
        throw DBException("no database is open", SQLITE_MISUSE);
    sqlite3_busy_timeout(m_pConnection, milliseconds(m_nBusyTimeout));
    const char* pszRest = pszSql ? pszSql : "";
    Statement pStatement;
    while (*pszRest) {
        sqlite3_stmt* pRaw = nullptr;
        const int nResult = sqlite3_prepare_v2(m_pConnection, pszRest, -1, &pRaw, &pszRest);
        Statement pNext(pRaw);
        if (pStatement && (pNext || nResult != SQLITE_OK))
            throw DBException("more than one statement", SQLITE_MISUSE);
        if (nResult != SQLITE_OK)
            fail();
        if (pNext)
            pStatement = std::move(pNext);
    }
    if (!pStatement)
        throw DBException("no statement", SQLITE_MISUSE);
    return pStatement;
}

bool Sqlite::step(sqlite3_stmt* pStatement)
{
    const int nResult = sqlite3_step(pStatement);
    if (nResult != SQLITE_ROW && nResult != SQLITE_DONE)
        fail();
    return nResult == SQLITE_ROW;
}

void Sqlite::fail() const
{
    throw DBException(sqlite3_errmsg(m_pConnection), sqlite3_errcode(m_pConnection));
}

} // namespace TAMFx::DB
