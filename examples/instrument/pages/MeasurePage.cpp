#include "pages/MeasurePage.h"

#include "ApplicationEvents.h"
#include "InstrumentFrame.h"

#include "components/buttons/ZELImageButton.h"
#include "components/gauges/ZELRoundProgressBar.h"
#include "components/pictures/ZELChartImageBox.h"
#include "components/pictures/ZELPieImageBox.h"
#include "components/text/ZELLabel.h"
#include "events/EventNumbers.h"
#include "events/ZELErrorEvent.h"
#include "resource/SoundFactory.h"

#include <algorithm>

using PANFx::Components::ZELChartImageBox;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELLabel;
using PANFx::Components::ZELPieImageBox;
using PANFx::Components::ZELRoundProgressBar;
using PANFx::Resource::SoundFactory;

namespace {

const int chartMargin = 10; // pixels between the edge of the chart and its line
const int holdTime = 5;     // readings
const int meanLength = 5;   // readings of which a mean is taken
const int fastSteps = 10;   // of the limit, at each tick of a button that is held for long

std::string faultText(unsigned nCode)
{
    return localText(nCode == Analyser::still ? "@fault.still" : "@fault");
}

} // namespace

MeasurePage::MeasurePage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
    , m_shown(analyser().channels())
{
    showChoice(m_nChannel, true);
    if (auto* pButton = component<ZELImageButton>("sample", "ZELImageButton"))
        pButton->setElidedText(true);
}

void MeasurePage::activating()
{
    m_nHeld = 0;
    m_bStepped = false;
    m_bAveraging = false;
    m_bFaultReported = false;
    m_strFaulty.clear();
    InstrumentPage::activating();
}

bool MeasurePage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (pEvent->type() == EVENT_LONG_PRESS || pEvent->type() == EVENT_LONG_PRESS_HELD) {
        stepLimit(senderID(pEvent), pEvent->type() == EVENT_LONG_PRESS ? 1 : fastSteps);
        m_bStepped = true;
    } else if (strID == "limit_minus" || strID == "limit_plus") {
        // the end of a long press is a touch too, and must not step once more
        if (!m_bStepped)
            stepLimit(strID, 1);
        m_bStepped = false;
    } else if (strID == "back") {
        m_pFrame->moveBack(true);
    } else if (strID == "sample") {
        m_pFrame->moveTo("sample", true, true);
    } else if (strID == "limit") {
        m_pFrame->moveTo("limits", true, true);
    } else if (strID == "save") {
        save();
    } else if (strID == "mean") {
        startMean();
    } else if (pEvent->type() == EVENT_SENSOR_FAULT) {
        takeFault(static_cast<ZELErrorEvent&>(*pEvent)); // its number tells the class
    } else if (!choose(strID)) {
        if (pEvent->type() == EVENT_READING)
            takeReading();
        return InstrumentPage::event(pEvent);
    }
    return true;
}

bool MeasurePage::choose(const std::string& strID)
{
    for (std::size_t n = 0; n < m_shown.size(); ++n) {
        if (m_shown[n].strName == strID) {
            showChoice(m_nChannel, false);
            m_nChannel = n;
            showChoice(m_nChannel, true);
            showValues();
            return true;
        }
    }
    return false;
}

void MeasurePage::stepLimit(const std::string& strID, int nSteps)
{
    analyser().stepLimit(m_nChannel, strID == "limit_plus" ? nSteps : -nSteps);
    showValues();
}

void MeasurePage::save()
{
    Values values = {};
    for (std::size_t n = 0; n < values.size(); ++n)
        values[n] = m_shown[n].readings.back();
    if (store(values) && m_pFrame->settings().bAutoHold)
        m_nHeld = holdTime;
    showValues();
}

void MeasurePage::startMean()
{
    m_bAveraging = true;
    m_nTaken = 0;
    m_sums = {};
    showValues();
}

// A fault is reported before each of its readings, so it is over with the first one without.
void MeasurePage::takeFault(const ZELErrorEvent& fault)
{
    if (m_strFaulty.empty())
        SoundFactory::getInstance()->playWarningSound();
    m_strFaulty = fault.m_strMessage;
    m_strFault = faultText(fault.m_nCode);
    m_bFaultReported = true;
    m_bAveraging = false; // there is no mean of such readings
}

// The last reading of a mean stores it.
void MeasurePage::takeReading()
{
    if (!m_bFaultReported)
        m_strFaulty.clear();
    m_bFaultReported = false;
    m_nHeld = std::max(0, m_nHeld - 1);
    if (!m_bAveraging)
        return;
    for (std::size_t n = 0; n < m_sums.size(); ++n)
        m_sums[n] += analyser().channels()[n].readings.back();
    if (++m_nTaken < meanLength)
        return;
    m_bAveraging = false;
    for (double& dSum : m_sums)
        dSum /= meanLength;
    store(m_sums);
}

// Name and code stay where they are until the measurement is stored under them.
bool MeasurePage::store(const Values& values)
{
    const QDateTime time = m_pFrame->now();
    const auto store = [&] { return m_pFrame->records().store(time, sampleName(), values); };
    if (!tryToChange("@store.failed", store))
        return false;
    Settings settings = m_pFrame->settings();
    settings.strSampleName.clear();
    settings.strSampleCode.clear();
    m_pFrame->setSettings(settings);
    SoundFactory::getInstance()->playCompleteSound();
    return true;
}

std::string MeasurePage::sampleName() const
{
    const Settings& settings = m_pFrame->settings();
    return settings.strSampleName.empty() ? settings.strSampleCode : settings.strSampleName;
}

void MeasurePage::showSample()
{
    const std::string strName = sampleName();
    if (auto* pButton = component<ZELImageButton>("sample", "ZELImageButton")) {
        pButton->setTitle(strName.empty() ? localText("@sample") : strName);
        pButton->update();
    }
}

void MeasurePage::showValues()
{
    InstrumentPage::showValues();
    if (m_nHeld == 0)
        m_shown = analyser().channels();
    setDimmed("save", m_nHeld > 0 || m_bAveraging || !m_strFaulty.empty());
    showMean();
    showSample();
    showButtons();
    const Analyser::Channel& channel = m_shown[m_nChannel];
    showGauge(channel);
    showState(channel);
    showTrend(channel);
}

// Done at a choice only: new pictures would also end the look of a button that is held.
void MeasurePage::showChoice(std::size_t nChannel, bool bChosen)
{
    const std::string strName = m_shown[nChannel].strName;
    const std::string strPicture = "channel_" + strName;
    if (auto* pButton = component<ZELImageButton>(strName, "ZELImageButton")) {
        pButton->setImages(strPicture + "_down.png", strPicture + (bChosen ? "_on.png" : "_up.png"),
                           strPicture + "_dim.png");
        pButton->update();
    }
}

void MeasurePage::showButtons()
{
    for (const Analyser::Channel& channel : m_shown) {
        if (auto* pButton = component<ZELImageButton>(channel.strName, "ZELImageButton")) {
            pButton->setTitle(Analyser::text(channel, channel.readings.back()) + " " +
                              channel.strUnit);
            pButton->update();
        }
    }
}

void MeasurePage::showMean()
{
    setDimmed("mean", m_bAveraging || !m_strFaulty.empty());
    if (auto* pProgress = component<ZELRoundProgressBar>("mean.progress", "ZELRoundProgress"))
        pProgress->SetPercent(m_bAveraging ? 100 * m_nTaken / meanLength : 0);
}

void MeasurePage::showGauge(const Analyser::Channel& channel)
{
    const double dReading = channel.readings.back();
    const double dShare = Analyser::share(dReading, channel.dLow, channel.dHigh);
    if (auto* pGauge = component<ZELPieImageBox>("gauge", "ZELPieImageBox")) {
        pGauge->setImage("ring_" + channel.strName + ".png");
        // the angle is what the box hides of its ring
        pGauge->SetAngle(360 - static_cast<int>(360 * dShare));
    }
    setText("name", localText("@" + channel.strName));
    setText("value", Analyser::text(channel, dReading));
    setText("unit", channel.strUnit);
    setText("range", Analyser::wholeText(channel, channel.dLow) + " – " +
                         Analyser::wholeText(channel, channel.dHigh));
}

void MeasurePage::showState(const Analyser::Channel& channel)
{
    const double dLimit = analyser().channels()[m_nChannel].dLimit;
    const bool bAbove = channel.readings.back() > dLimit;
    const bool bFaulty = channel.strName == m_strFaulty;
    for (const char* pszLabel : {"value", "state"}) {
        if (auto* pLabel = component<ZELLabel>(pszLabel, "ZELLabel"))
            pLabel->setFontStyle(bAbove || bFaulty ? 1 : 0);
    }
    setText("state", bFaulty        ? m_strFault
                     : bAbove       ? localText("@above")
                     : m_bAveraging ? localText("@averaging")
                     : m_nHeld > 0  ? localText("@held")
                                    : "");
    setText("limit", Analyser::text(channel, dLimit));
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
        const double dShare = Analyser::share(dReading, *pLow, *pHigh);
        pChart->m_nPointX[i] = chartMargin + i * nWidth / (Analyser::trendLength - 1);
        pChart->m_nPointY[i] = chartMargin + static_cast<int>((1 - dShare) * nHeight);
    }
    pChart->update();
}
