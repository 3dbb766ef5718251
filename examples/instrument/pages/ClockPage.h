#pragma once

#include "pages/PadPage.h"

#include <QTime>

/// Sets the instrument's clock, and the order in which dates are typed and shown.
class ClockPage : public PadPage
{
public:
    ClockPage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;
    void fillField(const std::string& strField) override;
    void takeField(const std::string& strField) override;

private:
    void readOrder();
    void applyOrder();
    void setClock();

    QDate m_date; ///< what the fields hold, for a touch on "set"
    QTime m_time;
    bool m_bTyped = false; ///< one of them has been typed
};
