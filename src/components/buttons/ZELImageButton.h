#pragma once

#include "components/ZELComponent.h"
#include "components/support/TellOnce.h"

#include <QPropertyAnimation>
#include <QRect>
#include <QWidget>

#include <string>

class QPainter;
class QPixmap;

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

class Timer;

/**
 * The push button of the panel and the model for every other button: one of three pictures (up,
 * down, dim), an optional title in three styles, the touch sound, a push of a few pixels while
 * held, and the ticks of a long press.
 *
 * Layout: attributes "title" (a text or "@key") and, read with a title only, "style",
 * "pressstyle", "dimstyle", "animation" ("elastic_push"); "longpress" ("false" is off, anything
 * else on); children "image" ("up", "down", "dim"), "position", "textPos" (with "align") and
 * "imagePos". An attribute missing from "textPos" or "imagePos" takes the value of the same
 * attribute of "position", though the one is in widget and the other in parent coordinates:
 * layouts are made for that.
 *
 * Posts to its parent EVENT_MOUSE_UP (1552) at every release outside dim mode, wherever the
 * pointer is, and while held with long press on EVENT_LONG_PRESS (1571) after 1000 ms and three
 * times more each 300 ms, then EVENT_LONG_PRESS_HELD (1572) each 300 ms. Setters don't repaint
 * unless told otherwise.
 */
class QTPANFX_EXPORT ZELImageButton : public ZELComponent, public QWidget
{
public:
    /**
     * A child of @p pParent, not shown. A null element writes an error line and leaves the button
     * with neither pictures nor title.
     */
    ZELImageButton(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageButton() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Takes the file names of the pictures, the pressed one first. */
    void setImages(std::string strDown, std::string strUp, std::string strDim);

    /** UTF-8, shown as it is: "@key" is looked up in layouts only. */
    void setTitle(std::string strTitle);

    /** The title as it is shown, not its key. */
    std::string getTitle();

    /** Style of the title in the normal state, not owned. */
    void setFont(Resource::Font* pFont);

    /** Whether a press and the first tick of a hold play the touch sound; they do at first. */
    void setSoundMode(bool bSoundMode);

    /** Whether a hold ticks, from the next press on; it doesn't at first. */
    void setLongPress(bool bLongPress);

    /** Elides the title from now on, whatever the argument: there is no way back. */
    void setElidedText(bool bElided);

    /** The rest position in the parent, in pixels; the button is not moved. */
    void setOrgPos(int nX, int nY);

    /** Dim mode shows the dim picture and style and takes no touches; repaints. */
    void setDimMode(bool bDimMode);

protected:
    /** For a derived class that reads its layout in its own way: none is read here. */
    ZELImageButton(QWidget* pParent, std::string strID, std::string strType);

    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    /** What a press does first: the pressed picture, the sound and the animation. */
    void press();

    /** What a press does last: the wait for a long press begins, where it is on. */
    void hold();

    /**
     * One tick of a hold: reports it, with the sound for the first one, and lets the next tick come
     * while the button is pressed. In dim mode the ticks end.
     */
    void onLongPressed();

    /** Starts the push, m_nPressOffset right and down in 150 ms; nothing without "elastic_push". */
    void animationPressed();

    /**
     * Starts the way back to the rest position, 150 ms from where the button is now; nothing
     * without "elastic_push".
     */
    void animationReleased();

    /** The down picture, loaded now when it isn't yet; null where there is none. */
    QPixmap* downImage();

    /** downImage() for a checked button; where there is none, one error line through @p logger. */
    QPixmap* checkedImage(Common::SysLogger& logger);

    /**
     * Paints a button that has a checked state: the down picture and press style while checked.
     * @param logger the concrete class's own, for what is amiss
     */
    void paintCheckable(bool bChecked, Common::SysLogger& logger);

    std::string m_strDownImage;             ///< file name
    std::string m_strUpImage;               ///< file name
    std::string m_strDimImage;              ///< file name
    QPixmap* m_pDownImage = nullptr;        ///< not owned; may be null until the first press
    QPixmap* m_pUpImage = nullptr;          ///< not owned
    QPixmap* m_pCurImage = nullptr;         ///< not owned; what is painted
    Resource::Font* m_pFont = nullptr;      ///< not owned; null paints no title
    Resource::Font* m_pDimFont = nullptr;   ///< not owned; null paints as if not dim
    Resource::Font* m_pPressFont = nullptr; ///< not owned; null paints in m_pFont
    int m_nAlign = Qt::AlignCenter;         ///< Qt alignment flags of the title
    bool m_bDimMode = false;
    bool m_bPressed = false;
    bool m_bSoundMode = true;
    QPropertyAnimation m_animation;
    std::string m_strTitle;      ///< UTF-8
    int m_nPressOffset = 0;      ///< pixels that the button moves on a press, 0 to 4
    int m_nOrgX = 0;             ///< rest position in the parent, in pixels
    int m_nOrgY = 0;             ///< rest position in the parent, in pixels
    QRect m_imageRect;           ///< in widget coordinates; unset means the whole widget
    QRect m_textRect;            ///< in widget coordinates; unset means the whole widget
    std::string m_strAnimation;  ///< "elastic_push"; any other text is no animation
    Timer* m_pTimer = nullptr;   ///< owned
    bool m_bLongPressed = false; ///< this hold has ticked
    int m_nLongPressCount = 0;   ///< ticks in this press
    bool m_bLongPress = false;   ///< whether a hold ticks
    bool m_bElided = false;
    Common::SysLogger m_logger{"QTPANFx", "ZELImageButton"};

private:
    void readTitle(TAMFx::Common::Xml::Node* pLayout);
    void dropPress();
    void animateTo(int nX, int nY, double dAmplitude);
    void paintTitle(QPainter& painter, bool bPressStyle, bool bElided);

    TellOnce m_noDownImage;
};

} // namespace PANFx::Components
