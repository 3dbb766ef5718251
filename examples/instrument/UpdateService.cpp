#include "UpdateService.h"

#include "ApplicationEvents.h"

#include "events/ZELUpdateInfoEvent.h"
#include "events/ZELUpdateStatusEvent.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <memory>

namespace {

const std::chrono::milliseconds tick(40);
const int tickPercent = 5; // of the image that is being loaded

/// The status once so many percent of all images, one after the other, have been loaded.
std::unique_ptr<ZELUpdateStatusEvent> statusAt(int nLoaded)
{
    auto pEvent = std::make_unique<ZELUpdateStatusEvent>(EVENT_UPDATE_STATUS);
    for (int nImage = 0; nImage < UpdateService::imageCount; ++nImage) {
        ZELUpdateStatusItem item(nImage, std::clamp(nLoaded - 100 * nImage, 0, 100));
        pEvent->addUpdateStatusItem(&item);
    }
    return pEvent;
}

} // namespace

UpdateService::UpdateService(QObject& receiver)
    : m_receiver(receiver)
{
}

UpdateService::~UpdateService()
{
    stop();
}

const std::string& UpdateService::version()
{
    static const std::string strVersion = "1.1.0";
    return strVersion;
}

void UpdateService::announce()
{
    auto pEvent = std::make_unique<ZELUpdateInfoEvent>(EVENT_UPDATE_INFO);
    const std::string versions[imageCount] = {"2.4", "5.15.148", "2026.11", version()};
    for (int nImage = 0; nImage < imageCount; ++nImage) {
        ZELUpdateInfoItem item(nImage, versions[nImage]);
        pEvent->addUpdateItem(&item);
    }
    QCoreApplication::postEvent(&m_receiver, pEvent.release());
}

void UpdateService::start()
{
    stop();
    m_bStop = false;
    m_thread = std::thread([this] { load(); });
}

void UpdateService::stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_bStop = true;
    }
    m_stopped.notify_one();
    m_thread.join();
    QCoreApplication::removePostedEvents(&m_receiver, EVENT_UPDATE_STATUS);
}

void UpdateService::load()
{
    for (int nLoaded = 0; nLoaded <= 100 * imageCount; nLoaded += tickPercent) {
        QCoreApplication::postEvent(&m_receiver, statusAt(nLoaded).release());
        if (!pause())
            return;
    }
}

/// Waits for a tick; false when the service is to stop.
bool UpdateService::pause()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return !m_stopped.wait_for(lock, tick, [this] { return m_bStop; });
}
