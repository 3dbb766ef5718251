#include "windows/Dao.h"

#include "common/systemPath.h"
#include "common/tamfx/DBException.h"
#include "common/tamfx/Sqlite.h"

namespace PANFx::Windows {

using TAMFx::DB::DBException;
using TAMFx::DB::Sqlite;

namespace {

constexpr const char* databasePath = "/data/db/OSKDB.db";
constexpr int openFlags = 7002;
constexpr int busyTimeout = 200000; // microseconds

} // namespace

Dao::Dao() = default;

Dao::~Dao()
{
    delete m_pConnection;
}

bool Dao::getDBConnection()
{
    if (!m_pConnection)
        m_pConnection = new Sqlite;
    return m_pConnection->Open(Common::systemPath(databasePath).c_str(), openFlags);
}

void Dao::releaseDBConnection()
{
    if (!m_pConnection) {
        m_logger.WriteError("[%s] no connection", "releaseDBConnection");
        return;
    }
    m_pConnection->Close();
}

int Dao::execDB(const char* sql)
{
    try {
        getDBConnection();
        const int result = m_pConnection->Execute(sql, busyTimeout);
        m_pConnection->Close();
        return result;
    } catch (DBException& exception) {
        m_logger.WriteError("[%s] Exception : %s", "execDB", exception.GetMessage());
        m_pConnection->Close();
        return 0;
    }
}

int Dao::execDBwithLock(const char* sql)
{
    try {
        getDBConnection();
        m_pConnection->Lock();
        const int result = m_pConnection->Execute(sql, busyTimeout);
        m_pConnection->UnLock();
        m_pConnection->Close();
        return result;
    } catch (DBException& exception) {
        m_logger.WriteError("[%s] Exception : %s", "execDBwithLock", exception.GetMessage());
        m_pConnection->UnLock();
        m_pConnection->Close();
        return 0;
    }
}

bool Dao::execDBTable(const char* sql, TAMFx::Data::Collection::Table& table)
{
    try {
        getDBConnection();
        m_pConnection->getTable(sql, table);
        m_pConnection->Close();
        return true;
    } catch (DBException& exception) {
        // at debug level, unlike the other two, and it stays so
        m_logger.WriteDebug("[%s] Exception : %s", "execDBTable", exception.GetMessage());
        m_pConnection->Close();
        return false;
    }
}

} // namespace PANFx::Windows
