#pragma once

#include "components/ZELComponent.h"

#include <QProgressBar>

#include <string>

namespace PANFx::Components {

/** Base of the gauges from 0 to 100 percent. They take no touch and post no event. */
class QTPANFX_EXPORT ZELProgressBar : public ZELComponent, public QProgressBar
{
public:
    /** The value is 0. The element is left to the derived class. */
    ZELProgressBar(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout);
    ~ZELProgressBar() override;

    void showWindow() override = 0;
    void hideWindow() override = 0;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override = 0;
    QWidget* getQWidget() override = 0;

    /** @param nPercent 0 to 100; others change nothing here */
    virtual void SetPercent(int nPercent);

protected:
    void paintEvent(QPaintEvent* pEvent) override = 0;

    Common::SysLogger m_logger; ///< used by nothing
};

} // namespace PANFx::Components
