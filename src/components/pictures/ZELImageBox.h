#pragma once

#include "components/ZELComponent.h"

#include <QWidget>

#include <string>

class QPixmap;

namespace PANFx::Components {

/**
 * One picture, scaled to the component's size and optionally rotated. A touch is reported as a
 * click, without a sound.
 *
 * Layout: attributes "file", and "x", "y", "width", "height" in pixels (0 each when absent) of
 * the element itself. Without "file" nothing else is read.
 *
 * Posts EVENT_MOUSE_UP (1552) to its parent at each release.
 */
class QTPANFX_EXPORT ZELImageBox : public ZELComponent, public QWidget
{
public:
    /**
     * A child of @p pParent, not shown. A null element, or one without "file", writes an error line
     * and leaves the box with neither picture nor place.
     */
    ZELImageBox(QWidget* pParent, std::string strID, std::string strType,
                TAMFx::Common::Xml::Node* pLayout);
    ~ZELImageBox() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Rotation in degrees, clockwise about the centre; repaints. */
    void setRotate(int nDegrees);

    /**
     * Shows the picture of that file name in its own size, at the box's position.
     * @return false, with an error line, when there is none; the old picture is gone
     */
    bool setImage(std::string strName);

    /**
     * Shows a picture in its own size, at the box's position.
     * @param pPixmap not owned, has to outlive the box; null shows nothing and keeps the size
     */
    void setImage(QPixmap* pPixmap);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

    QPixmap* m_pBGPixmap = nullptr; ///< not owned
    int m_nRotate = 0;              ///< degrees, clockwise
    Common::SysLogger m_logger{"QTPANFx", "ZELImageBox"};

private:
    bool takeImage(const std::string& strName);
    void resizeToPicture();
};

} // namespace PANFx::Components
