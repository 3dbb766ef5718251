#pragma once

#include <string>

/// The label reader that the tour plugs in and pulls off: a named pipe in the instrument's file
/// system, in the place of whatever was there.
class TourReader
{
public:
    TourReader() = default;

    /// Pulls it off.
    ~TourReader();

    TourReader(const TourReader&) = delete;
    TourReader& operator=(const TourReader&) = delete;

    /// Plugs it in, where it is not, and reads a label. Where it cannot be done, the reason goes to
    /// the standard error.
    void read(const std::string& strLine);

    void unplug();

private:
    int m_nPipe = -1; ///< keeps what has been written until the instrument takes it
};
