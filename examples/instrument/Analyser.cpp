#include "Analyser.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace {

std::string number(const Analyser::Channel& channel, double dValue, int nPlaces)
{
    return QString::number(dValue * channel.dFactor + channel.dOffset, 'f', nPlaces).toStdString();
}

} // namespace

Analyser::Analyser()
    : m_channels{{"ph", "pH", 2, 0, 14, 7.24, 0.12, 0.31, 7.60},
                 {"cond", "μS/cm", 0, 0, 1000, 412, 14, 0.23, 500},
                 {"oxygen", "mg/L", 2, 0, 15, 8.41, 0.22, 0.37, 12},
                 {"temp", "°C", 1, 0, 50, 21.4, 0.6, 0.17, 30}}
    , m_records{{"10:42", "W-0148", {7.21, 418, 8.36, 21.3}},
                {"10:31", "W-0147", {7.34, 402, 8.58, 20.9}},
                {"10:18", "W-0146", {6.98, 655, 7.12, 22.0}},
                {"10:05", "W-0145", {7.02, 641, 7.25, 21.8}},
                {"09:54", "W-0144", {7.27, 410, 8.44, 21.1}},
                {"09:40", "W-0143", {8.11, 287, 9.02, 18.6}},
                {"09:27", "W-0142", {8.06, 291, 8.97, 18.4}},
                {"09:12", "W-0141", {7.19, 415, 8.40, 20.7}}}
{
    for (int i = 0; i < trendLength; ++i)
        measure();
}

void Analyser::measure()
{
    ++m_nTime;
    for (Channel& channel : m_channels) {
        const double dAngle = m_nTime * channel.dPace;
        const double dWave = 0.7 * std::sin(dAngle) + 0.3 * std::sin(2.7 * dAngle + 1);
        std::rotate(channel.readings.begin(), channel.readings.begin() + 1, channel.readings.end());
        channel.readings.back() = channel.dMiddle + channel.dSwing * dWave;
    }
}

void Analyser::store(const std::vector<Channel>& readings, const std::string& strTime,
                     const std::string& strSample)
{
    Record record = {strTime, strSample, {}};
    if (strSample.empty())
        record.strSample = QString::asprintf("W-%04d", ++m_nSample).toStdString();
    for (std::size_t n = 0; n < record.values.size(); ++n)
        record.values[n] = readings[n].readings.back();
    m_records.insert(m_records.begin(), record);
    if (m_records.size() > recordLimit)
        m_records.pop_back();
}

void Analyser::stepLimit(std::size_t nChannel, int nSteps)
{
    const Channel& channel = m_channels[nChannel];
    const double dStep = std::pow(10, -channel.nPlaces) / channel.dFactor;
    setLimit(nChannel, channel.dLimit + nSteps * dStep);
}

void Analyser::setLimit(std::size_t nChannel, double dLimit)
{
    Channel& channel = m_channels[nChannel];
    channel.dLimit = std::clamp(dLimit, channel.dLow, channel.dHigh);
}

void Analyser::setFahrenheit(bool bFahrenheit)
{
    Channel& channel = m_channels[temperatureAt];
    channel.strUnit = bFahrenheit ? "°F" : "°C";
    channel.dFactor = bFahrenheit ? 1.8 : 1;
    channel.dOffset = bFahrenheit ? 32 : 0;
}

std::string Analyser::text(const Channel& channel, double dValue)
{
    return number(channel, dValue, channel.nPlaces);
}

std::string Analyser::wholeText(const Channel& channel, double dValue)
{
    return number(channel, dValue, 0);
}
