// the example's own source, as it stands
#include "../examples/instrument/Analyser.cpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/** Stands where the page stands. */
class Receiver : public QObject
{
public:
    std::vector<std::string> faults;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != EVENT_SENSOR_FAULT)
            return QObject::event(event);
        const auto& fault = static_cast<ZELErrorEvent&>(*event);
        faults.push_back(std::to_string(fault.m_nCode) + " " + fault.m_strMessage);
        return true;
    }
};

/** What is reported after so many more readings. */
std::vector<std::string> faultsAfter(Analyser& analyser, int readings)
{
    for (int n = 0; n < readings; ++n)
        analyser.measure();
    Receiver receiver;
    analyser.reportFaults(receiver);
    QCoreApplication::sendPostedEvents(&receiver);
    return receiver.faults;
}

TEST(AnalyserTest, withoutStirringTheOxygenSensorIsAtFaultAfterSomeReadings)
{
    const std::vector<std::string> none;
    Analyser analyser;
    EXPECT_EQ(faultsAfter(analyser, 10), none);
    analyser.setStirred(false);
    EXPECT_EQ(faultsAfter(analyser, 3), none);
    const std::vector<std::string> oxygen = {"1 oxygen"};
    EXPECT_EQ(faultsAfter(analyser, 1), oxygen);
    EXPECT_EQ(faultsAfter(analyser, 20), oxygen);
    analyser.setStirred(true);
    EXPECT_EQ(faultsAfter(analyser, 1), none);
}

TEST(AnalyserTest, aShareIsCountedFromTheLowEnd)
{
    EXPECT_DOUBLE_EQ(Analyser::share(20, 20, 60), 0);
    EXPECT_DOUBLE_EQ(Analyser::share(30, 20, 60), 0.25);
    EXPECT_DOUBLE_EQ(Analyser::share(60, 20, 60), 1);
}

TEST(AnalyserTest, aValueOutsideOfARangeCountsAsItsEnd)
{
    EXPECT_DOUBLE_EQ(Analyser::share(-1, 0, 14), 0);
    EXPECT_DOUBLE_EQ(Analyser::share(15, 0, 14), 1);
}

TEST(AnalyserTest, aRangeWithoutWidthHasItsValueInTheMiddle)
{
    EXPECT_DOUBLE_EQ(Analyser::share(7, 7, 7), 0.5);
    EXPECT_DOUBLE_EQ(Analyser::share(8, 7, 7), 0.5);
}

} // namespace
