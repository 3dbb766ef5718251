#pragma once

#include "components/ZELComponent.h"

#include <QTextEdit>

#include <string>

namespace PANFx::Components {

/**
 * A field for text of several lines: a QTextEdit as a component, with the look of the style sheet
 * file "/app/bin/resource/stylesheet.qss", which every new field reads. Home and End do nothing.
 *
 * Layout: child "position"; without it the field has no size. Posts no event: text goes in and
 * out through the QTextEdit.
 */
class QTPANFX_EXPORT ZELTextEdit : public ZELComponent, public QTextEdit
{
public:
    /**
     * A child of @p pParent, not shown. A null element writes an error line; without a style sheet
     * file there is a debug line and the look of Qt.
     */
    ZELTextEdit(QWidget* pParent, std::string strID, std::string strType,
                TAMFx::Common::Xml::Node* pLayout);
    ~ZELTextEdit() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    bool event(QEvent* pEvent) override;

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELTextEdit"};

private:
    void readStyleSheet();
    void releaseScrollBar();
};

} // namespace PANFx::Components
