#pragma once

#include <array>
#include <string>
#include <vector>

/// The measuring head of the instrument, simulated: four channels, one reading at a time.
class Analyser
{
public:
    static constexpr int trendLength = 20; ///< readings that are kept; what a chart box can show

    struct Channel
    {
        std::string strName; ///< name in the layouts, and key of the displayed name
        std::string strUnit;
        int nPlaces;                                   ///< decimal places of a reading
        double dLow, dHigh;                            ///< range of the gauge
        double dMiddle, dSwing, dPace;                 ///< what the simulation wanders around
        std::array<double, trendLength> readings = {}; ///< oldest first
    };

    /// One stored measurement.
    struct Record
    {
        std::string strTime;
        std::string strSample;
        std::array<double, 4> values; ///< in the order of the channels
    };

    Analyser();

    /// Takes one more reading of each channel; the oldest one goes.
    void measure();

    const std::vector<Channel>& channels() const { return m_channels; }
    const std::vector<Record>& records() const { return m_records; }

    /// A value of the channel as it is shown, without its unit.
    static std::string text(const Channel& channel, double dValue);

private:
    std::vector<Channel> m_channels;
    std::vector<Record> m_records;
    int m_nTime = 0; ///< readings taken since the start
};
