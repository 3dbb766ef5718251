#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/HashTable.h"

namespace TAMFx::DB {
class Sqlite;
}

namespace TAMFx::Data::Collection {
class Table;
}

namespace PANFx::Windows {

/**
 * Base of an application's data access objects, on the database "/data/db/OSKDB.db". A connection
 * is opened for each statement and closed after it; a database error becomes a log line and a
 * failure result.
 */
class QTPANFX_EXPORT Dao : public TAMFx::Data::Collection::HashTable
{
public:
    /** Opens nothing. */
    Dao();
    ~Dao() override;

    Dao(const Dao&) = delete;
    Dao& operator=(const Dao&) = delete;

    /**
     * Opens the connection, made on first use.
     * @return true
     * @throw TAMFx::DB::DBException by value when it can't be opened
     */
    bool getDBConnection();

    /** Closes the connection. Before any statement there is none: an error line, nothing else. */
    void releaseDBConnection();

    /**
     * Runs one statement.
     * @return the number of rows changed; 0, with an error line, on a database error
     */
    int execDB(const char* sql);

    /** As execDB, excluding other users of this operation, in other processes too. */
    int execDBwithLock(const char* sql);

    /**
     * Runs a query.
     * @param table gets the columns and rows; after a failure it is left as that left it
     * @return false, with a debug line only, on a database error
     */
    bool execDBTable(const char* sql, TAMFx::Data::Collection::Table& table);

    TAMFx::DB::Sqlite* m_pConnection = nullptr; ///< owned; null before the first statement

protected:
    Common::SysLogger m_logger{"QTPANFx", "Dao"};
};

} // namespace PANFx::Windows
