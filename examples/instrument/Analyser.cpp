#include "Analyser.h"

#include "ApplicationEvents.h"

#include "events/ZELErrorEvent.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cmath>

namespace {

const int stillReadings = 3; // that the oxygen sensor gets along with

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
{
    for (int i = 0; i < trendLength; ++i)
        measure();
}

void Analyser::measure()
{
    ++m_nTime;
    m_nStill = m_bStirred ? 0 : m_nStill + 1;
    for (Channel& channel : m_channels) {
        const double dAngle = m_nTime * channel.dPace;
        const double dWave = 0.7 * std::sin(dAngle) + 0.3 * std::sin(2.7 * dAngle + 1);
        std::rotate(channel.readings.begin(), channel.readings.begin() + 1, channel.readings.end());
        channel.readings.back() = channel.dMiddle + channel.dSwing * dWave;
    }
}

void Analyser::reportFaults(QObject& receiver) const
{
    if (m_nStill > stillReadings)
        QCoreApplication::postEvent(&receiver, new ZELErrorEvent(EVENT_SENSOR_FAULT, still, 'S',
                                                                 m_channels[oxygenAt].strName));
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

double Analyser::share(double dValue, double dLow, double dHigh)
{
    return dLow < dHigh ? std::clamp((dValue - dLow) / (dHigh - dLow), 0.0, 1.0) : 0.5;
}

std::string Analyser::wholeText(const Channel& channel, double dValue)
{
    return number(channel, dValue, 0);
}
