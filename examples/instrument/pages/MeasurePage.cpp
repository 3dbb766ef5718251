#include "pages/MeasurePage.h"

#include "InstrumentFrame.h"

#include "components/pictures/ZELChartImageBox.h"
#include "components/pictures/ZELPieImageBox.h"
#include "resource/ZELResourceMgr.h"

#include <algorithm>

using PANFx::Components::ZELChartImageBox;
using PANFx::Components::ZELPieImageBox;
using PANFx::Resource::ZELResourceMgr;

namespace {

const int chartMargin = 10; // pixels between the edge of the chart and its line

std::string wholeNumber(double dValue)
{
    return std::to_string(static_cast<int>(dValue));
}

} // namespace

bool MeasurePage::event(QEvent* pEvent)
{
    const std::string strName = touchedName(pEvent);
    if (strName == "back")
        m_pFrame->moveBack(true);
    else if (!choose(strName))
        return InstrumentPage::event(pEvent);
    return true;
}

bool MeasurePage::choose(const std::string& strName)
{
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n) {
        if (channels[n].strName == strName) {
            m_nChannel = n;
            showValues();
            return true;
        }
    }
    return false;
}

void MeasurePage::showValues()
{
    InstrumentPage::showValues();
    showTiles();
    showGauge(analyser().channels()[m_nChannel]);
    showTrend(analyser().channels()[m_nChannel]);
}

void MeasurePage::showTiles()
{
    const std::vector<Analyser::Channel>& channels = analyser().channels();
    for (std::size_t n = 0; n < channels.size(); ++n) {
        const Analyser::Channel& channel = channels[n];
        const std::string strReading = Analyser::text(channel, channel.readings.back());
        setPicture(channel.strName, n == m_nChannel ? "channel_on.png" : "channel_up.png");
        setText(channel.strName + ".value", strReading + " " + channel.strUnit);
    }
}

void MeasurePage::showGauge(const Analyser::Channel& channel)
{
    const double dReading = channel.readings.back();
    const double dShare = (dReading - channel.dLow) / (channel.dHigh - channel.dLow);
    if (auto* pGauge = component<ZELPieImageBox>("gauge", "ZELPieImageBox")) {
        pGauge->setImage("ring_" + channel.strName + ".png");
        // the angle is what the box hides of its ring
        pGauge->SetAngle(360 - static_cast<int>(360 * std::clamp(dShare, 0.0, 1.0)));
    }
    setText("name", ZELResourceMgr::getInstance()->getLocaleString("@" + channel.strName));
    setText("value", Analyser::text(channel, dReading));
    setText("unit", channel.strUnit);
    setText("range", wholeNumber(channel.dLow) + " – " + wholeNumber(channel.dHigh));
}

void MeasurePage::showTrend(const Analyser::Channel& channel)
{
    const auto [pLow, pHigh] =
        std::minmax_element(channel.readings.begin(), channel.readings.end());
    setText("trend.low", Analyser::text(channel, *pLow));
    setText("trend.high", Analyser::text(channel, *pHigh));

    auto* pChart = component<ZELChartImageBox>("trend", "ZELChartImageBox");
    if (pChart == nullptr)
        return;
    const int nWidth = pChart->width() - 2 * chartMargin;
    const int nHeight = pChart->height() - 2 * chartMargin;
    for (int i = 0; i < Analyser::trendLength; ++i) {
        const double dReading = channel.readings[static_cast<std::size_t>(i)];
        const double dShare = (*pHigh - dReading) / (*pHigh - *pLow);
        pChart->m_nPointX[i] = chartMargin + i * nWidth / (Analyser::trendLength - 1);
        pChart->m_nPointY[i] = chartMargin + static_cast<int>(dShare * nHeight);
    }
    pChart->update();
}
