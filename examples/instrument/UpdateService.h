#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

class QObject;

/// Loads new software, simulated, in a thread of its own. The thread touches nothing of its
/// receiver but posts EVENT_UPDATE_INFO and EVENT_UPDATE_STATUS to it. All operations belong to the
/// thread of the receiver.
class UpdateService
{
public:
    /// The receiver must outlive the service.
    explicit UpdateService(QObject& receiver);

    /// Stops.
    ~UpdateService();

    UpdateService(const UpdateService&) = delete;
    UpdateService& operator=(const UpdateService&) = delete;

    /// Posts the images and their versions, without loading them.
    void announce();

    /// Begins to load, from the start again if it is loading already.
    void start();

    /// Ends the thread, at once. No status of it comes any more.
    void stop();

    static constexpr int imageCount = 4;
    static const std::string& version(); ///< of the new software

private:
    void load();
    bool pause();

    QObject& m_receiver;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_stopped;
    bool m_bStop = false; ///< guarded by m_mutex
};
