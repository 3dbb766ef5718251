#include "tour/TourDatabase.h"

#include "common/systemPath.h"
#include "common/tamfx/DBException.h"
#include "common/tamfx/Sqlite.h"

#include <cstdio>

using TAMFx::DB::DBException;
using TAMFx::DB::Sqlite;

TourDatabase::TourDatabase() = default;

TourDatabase::~TourDatabase() = default;

void TourDatabase::hold()
{
    try {
        m_pConnection = std::make_unique<Sqlite>();
        m_pConnection->Open(PANFx::Common::systemPath("/data/db/OSKDB.db").c_str(), 0);
        m_pConnection->Execute("BEGIN EXCLUSIVE", 0);
    } catch (DBException& fault) {
        std::fprintf(stderr, "cannot hold the database: %s\n", fault.GetMessage());
    }
}

// What was begun ends with the connection.
void TourDatabase::release()
{
    m_pConnection.reset();
}
