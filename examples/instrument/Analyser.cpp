#include "Analyser.h"

#include <QString>

#include <algorithm>
#include <cmath>

Analyser::Analyser()
    : m_channels{{"ph", "pH", 2, 0, 14, 7.24, 0.12, 0.31},
                 {"cond", "μS/cm", 0, 0, 1000, 412, 14, 0.23},
                 {"oxygen", "mg/L", 2, 0, 15, 8.41, 0.22, 0.37},
                 {"temp", "°C", 1, 0, 50, 21.4, 0.6, 0.17}}
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

std::string Analyser::text(const Channel& channel, double dValue)
{
    return QString::number(dValue, 'f', channel.nPlaces).toStdString();
}
