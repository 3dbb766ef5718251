#pragma once

#include <QDate>

#include <array>
#include <string>
#include <vector>

class QObject;

/// The measuring head of the instrument, simulated: four channels, one reading at a time.
class Analyser
{
public:
    static constexpr int trendLength = 20;          ///< readings that are kept; what a chart shows
    static constexpr std::size_t oxygenAt = 2;      ///< place of the oxygen among the channels
    static constexpr std::size_t temperatureAt = 3; ///< place of the temperature among them

    /// Code of what is wrong with a sensor.
    enum Fault : unsigned {
        still = 1 ///< the sample is not stirred, and the oxygen sensor uses up what is around it
    };

    struct Channel
    {
        std::string strName; ///< name in the layouts, and key of the displayed name
        std::string strUnit;
        int nPlaces;                                   ///< decimal places of a reading
        double dLow, dHigh;                            ///< range of the gauge
        double dMiddle, dSwing, dPace;                 ///< what the simulation wanders around
        double dLimit;                                 ///< a reading above it raises the alarm
        double dFactor = 1, dOffset = 0;               ///< from a value to the one that is shown
        std::array<double, trendLength> readings = {}; ///< oldest first

        bool isAboveLimit() const { return readings.back() > dLimit; }
    };

    Analyser();

    /// Takes one more reading of each channel; the oldest one goes.
    void measure();

    /// Posts EVENT_SENSOR_FAULT for each sensor whose last reading is not to be trusted.
    void reportFaults(QObject& receiver) const;

    /// Whether the stirrer runs. Without it the oxygen sensor is at fault some readings later.
    void setStirred(bool bStirred) { m_bStirred = bStirred; }

    /// Moves the limit of a channel by so many units of the last place shown, within its range.
    void stepLimit(std::size_t nChannel, int nSteps);

    /// Shows the temperature in degrees Fahrenheit, or else Celsius.
    void setFahrenheit(bool bFahrenheit);
    bool isFahrenheit() const { return m_channels[temperatureAt].dFactor != 1; }

    /// Sets the limit of a channel, in its own unit, within its range.
    void setLimit(std::size_t nChannel, double dLimit);

    /// Notes that the sensor has been calibrated on that day.
    void setCalibrated(const QDate& date) { m_calibrated = date; }

    const std::vector<Channel>& channels() const { return m_channels; }
    QDate calibrationDate() const { return m_calibrated; }

    /// A value of the channel as it is shown, without its unit.
    static std::string text(const Channel& channel, double dValue);

    /// The same as a whole number.
    static std::string wholeText(const Channel& channel, double dValue);

    /// Where a value lies in a range, from 0 at its low end to 1 at the high one; a value outside
    /// counts as that end. In a range without width it is the middle.
    static double share(double dValue, double dLow, double dHigh);

private:
    std::vector<Channel> m_channels;
    QDate m_calibrated = QDate::currentDate().addDays(-19);
    int m_nTime = 0; ///< readings taken since the start
    bool m_bStirred = true;
    int m_nStill = 0; ///< readings taken since the stirrer was paused
};
