#pragma once

#include <QTPANFx/components/ZELComponent.h>

#include <QWidget>

#include <string>

/**
 * A tank that shows how full it is, and is red below its low mark. A touch is posted to the parent
 * as EVENT_MOUSE_UP with the id, as every component does.
 *
 * Layout: attributes "x", "y", "width", "height" in pixels, and "low", the low mark in percent
 * (0 when absent).
 */
class LevelMeter : public PANFx::Components::ZELComponent, public QWidget
{
public:
    LevelMeter(QWidget* pParent, std::string strID, TAMFx::Common::Xml::Node* pLayout);

    void showWindow() override { setVisible(true); }
    void hideWindow() override { setVisible(false); }
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override { return this; }

    /** Shows a level from 0 to 100 percent; what lies outside is held at the end. */
    void setLevel(int nPercent);
    int level() const { return m_nLevel; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent*) override {} // taken, so that the release comes here too
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    int m_nLevel = 0;
    int m_nLow = 0;
};
