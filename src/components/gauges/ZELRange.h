#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

namespace TAMFx::Common::Xml {
class Node;
}

class QPixmap;

namespace PANFx::Components {

class ZELImageButton;

/**
 * Base of the controls that step a small number up and down with two image buttons. A step beyond
 * a bound stays at the bound, and the button that leads outward goes dim.
 *
 * A derived class posts a ZELRangeEvent of EVENT_RANGE_CHANGED (1558) with the step to its parent
 * for each touch of a button, also where the step did not change.
 */
class QTPANFX_EXPORT ZELRange : public ZELComponent, public QWidget
{
public:
    /** A child of @p pParent, not shown, at step 0. The element is left to the derived class. */
    ZELRange(QWidget* pParent, std::string strID, std::string strType,
             TAMFx::Common::Xml::Node* pLayout);
    ~ZELRange() override;

    void showWindow() override = 0;
    void hideWindow() override = 0;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override = 0;
    QWidget* getQWidget() override = 0;

    /** Goes to a step, held at the bounds; posts nothing. */
    virtual void setStep(int nStep) = 0;

    /**
     * Dims or undims the buttons. A later setStep() undims them again; that of a ZELProgressRange
     * that wraps leaves them.
     */
    virtual void setEnable(bool bEnable) = 0;

protected:
    void paintEvent(QPaintEvent* pEvent) override = 0;

public:
    /** Whether the buttons play the touch sound; nothing but an error line without both of them. */
    void setSoundMode(bool bSoundMode);

    /** Stepping past a bound goes on at the other one. */
    void setWrap(bool bWrap);

    /** The step after it was held at the bounds; 0 at first. */
    int getStep() const;

protected:
    ZELImageButton* m_pUpBtn = nullptr;   ///< owned; adds 1
    ZELImageButton* m_pDownBtn = nullptr; ///< owned; takes 1 away
    /** Owned, wherever it lies; nothing here sets it. One that is gone already is left alone. */
    ZELComponent* m_pExtra = nullptr;
    int m_nStep = 0;      ///< counted from 0
    int m_nMax = 0;       ///< as each class defines it
    bool m_bWrap = false; ///< whether a step past a bound goes on at the other
    Common::SysLogger m_logger{"QTPANFx", "ZELRange"};

    /** Places a button that the layout describes, and gives it its pictures. */
    static void dressButton(ZELImageButton& button, TAMFx::Common::Xml::Node* pNode);

    /** Sets the dim mode of both buttons; one that there isn't is left out. */
    void dimButtons(bool bUp, bool bDown);

    /** Goes to a step from 0 to @p nTop as setStep() does; the buttons stay where it wraps. */
    void moveWithin(int nStep, int nTop);

    /** The part of setEnable() that concerns step and buttons. */
    void enableButtons(bool bEnable);

    /**
     * Handles the click of a button.
     * @return whether the event was a click, of a button or of anything else inside
     */
    bool handleClick(QEvent* pEvent, Common::SysLogger& logger);

private:
    void stepBy(int nDifference);
};

} // namespace PANFx::Components
