// the example's own source, as it stands
#include "../examples/instrument/LabelReader.cpp"
#include "support/EventLoop.h"
#include "support/PanelTest.h"

#include <QDir>

#include <sys/stat.h>
#include <utility>
#include <vector>

using namespace PANFx::Testing;

namespace {

using Label = std::pair<std::string, std::string>; ///< code and name
using Labels = std::vector<Label>;

/** Stands where the page stands. */
class Receiver : public QObject
{
public:
    Labels labels;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != EVENT_LABEL_READ)
            return QObject::event(event);
        auto& label = static_cast<ZELStringEvent&>(*event);
        labels.emplace_back(label.getString(1), label.getString(2));
        return true;
    }
};

class LabelReaderTest : public PanelTest
{
protected:
    LabelReaderTest() { QDir().mkpath(QString::fromStdString(realPath("/dev"))); }
    ~LabelReaderTest() override { pullOff(); }

    void plugIn()
    {
        const std::string path = realPath("/dev/reader");
        ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
        pipe = ::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        ASSERT_GE(pipe, 0);
    }

    void send(const std::string& bytes)
    {
        ASSERT_EQ(::write(pipe, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

    void pullOff()
    {
        if (pipe >= 0)
            ::close(pipe);
        pipe = -1;
    }

    /** Waits until so many labels have come. */
    Labels labels(std::size_t count)
    {
        EventLoop::waitFor([&] { return receiver.labels.size() >= count; });
        return receiver.labels;
    }

    int pipe = -1;
    Receiver receiver;
    LabelReader reader{receiver};
};

TEST_F(LabelReaderTest, postsCodeAndName)
{
    plugIn();
    reader.start();
    send("4711;Lake west\n");
    EXPECT_EQ(labels(1), (Labels{{"4711", "Lake west"}}));
}

TEST_F(LabelReaderTest, aLabelMayHaveNoName)
{
    plugIn();
    reader.start();
    send("4711\r\n\n4712;\n");
    EXPECT_EQ(labels(2), (Labels{{"4711", ""}, {"4712", ""}}));
}

TEST_F(LabelReaderTest, aLabelThatComesInPiecesIsOne)
{
    plugIn();
    reader.start();
    send("47");
    EventLoop::runFor(50);
    EXPECT_EQ(receiver.labels, Labels());
    send("11;Lake\n");
    EXPECT_EQ(labels(1), (Labels{{"4711", "Lake"}}));
}

TEST_F(LabelReaderTest, waitsForAReader)
{
    reader.start();
    EventLoop::runFor(50);
    plugIn();
    send("4711\n");
    EXPECT_EQ(labels(1), (Labels{{"4711", ""}}));
}

TEST_F(LabelReaderTest, nothingComesOnceItIsStopped)
{
    plugIn();
    reader.start();
    reader.stop();
    send("4711\n");
    EventLoop::runFor(50);
    EXPECT_EQ(receiver.labels, Labels());
    reader.start(); // what lay in the pipe is read by whoever comes next
    EXPECT_EQ(labels(1), (Labels{{"4711", ""}}));
}

TEST_F(LabelReaderTest, startAndStopMayBeRepeated)
{
    reader.stop();
    reader.start();
    reader.start();
    reader.stop();
    reader.stop();
    EXPECT_EQ(receiver.labels, Labels());
}

} // namespace
