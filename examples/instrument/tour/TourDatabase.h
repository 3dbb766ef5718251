#pragma once

#include <memory>

namespace TAMFx::DB {
class Sqlite;
}

/// Another program that works on the instrument's database: while it holds it, the instrument can
/// neither read nor write.
class TourDatabase
{
public:
    TourDatabase();

    /// Releases.
    ~TourDatabase();

    TourDatabase(const TourDatabase&) = delete;
    TourDatabase& operator=(const TourDatabase&) = delete;

    /// Where it cannot be done, the reason goes to the standard error.
    void hold();
    void release();

private:
    std::unique_ptr<TAMFx::DB::Sqlite> m_pConnection;
};
