#pragma once

#include "dialogs/InstrumentDialog.h"

namespace PANFx::Components {
class Timer;
}

/// Waits until the sensor is calibrated, or the user gives up; run it with showAndWait().
class CalibrationDialog : public InstrumentDialog
{
public:
    enum Result { cancelled, done };

    explicit CalibrationDialog(InstrumentFrame* pFrame);

    void activating() override;

protected:
    bool event(QEvent* pEvent) override;

private:
    void proceed();
    void showProgress();

    PANFx::Components::Timer* m_pTimer; ///< deleted with the dialog
    int m_nTicks = 0;                   ///< since the start
};
