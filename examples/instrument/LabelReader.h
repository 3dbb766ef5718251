#pragma once

#include <string>
#include <thread>

class QObject;

/// Reads labels from the reader at "/dev/reader" in a thread of its own: one line for each, a code
/// and after a semicolon, if the label has it, the name of the sample. The thread touches nothing
/// of its receiver but posts EVENT_LABEL_READ to it. Where there is no reader, it waits for one to
/// be plugged in. All operations belong to the thread of the receiver.
class LabelReader
{
public:
    /// The receiver must outlive the reader.
    explicit LabelReader(QObject& receiver);

    /// Stops.
    ~LabelReader();

    LabelReader(const LabelReader&) = delete;
    LabelReader& operator=(const LabelReader&) = delete;

    /// Begins to read; nothing happens where it has begun already.
    void start();

    /// Ends the thread, at once. No label comes any more.
    void stop();

private:
    void run();
    void take(const char* pBytes, std::size_t nCount);
    void post() const;

    QObject& m_receiver;
    std::thread m_thread;
    int m_nStop = -1; ///< descriptor of an event that ends the thread
    std::string m_strLine;
};
