#pragma once

#include "pages/PadPage.h"

/// The address of the laboratory server, the interval of the samples, the alarm limit of the pH
/// value and the code of the operator. What was typed is in force when its field is left.
class NetworkPage : public PadPage
{
public:
    NetworkPage(const std::string& strID, InstrumentFrame* pFrame);

protected:
    bool event(QEvent* pEvent) override;
    void showValues() override;
    void fillField(const std::string& strField) override;
    void takeField(const std::string& strField) override;

private:
    std::string valueOf(const std::string& strField);
    void prepareNumber(const std::string& strField, int nMin, int nMax, int nPlaces);
};
