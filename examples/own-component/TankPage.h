#pragma once

#include "LevelMeter.h"

#include <QTPANFx/windows/ZELChildWindow.h>

/// A page with a component of the application's own. A touch on the tank lets ten percent out.
class TankPage : public PANFx::Windows::ZELChildWindow
{
public:
    explicit TankPage(QWidget* pParent);

protected:
    bool event(QEvent* pEvent) override;

private:
    void showLevel(int nPercent);

    LevelMeter* m_pTank; ///< a child of the page, which deletes it
};
