#include "windows/ZELChildWindow.h"

#include "common/tamfx/Exception.h"
#include "print/Capture.h"
#include "windows/PageBuilding.h"

#include <QDateTime>

#include <utility>

namespace PANFx::Windows {

using Components::ZELComponent;
using TAMFx::Common::Xml::Node;

ZELChildWindow::ZELChildWindow(std::string strID, QWidget* pParent, std::string strResourceID)
    : ZELWindow(std::move(strID))
    , QWidget(pParent, Qt::WindowFlags())
{
    m_logger.WriteInfo("[%s] start strID: (%s), strResourceID: (%s)", "ZELChildWindow",
                       m_strID.c_str(), strResourceID.c_str());
    setUpScreenWidget(*this);
    m_strResourceID = strResourceID.empty() ? m_strID : std::move(strResourceID);

    const std::string path = layoutPath(m_strResourceID);
    try {
        if (!m_layout.loadLayout(path)) {
            m_logger.WriteError("[%s] Layout load failed: %s", "ZELChildWindow", path.c_str());
            return;
        }
    } catch (TAMFx::Common::Exception* exception) {
        m_logger.WriteError("[%s] Layout load failed: %s, %s", "ZELChildWindow", path.c_str(),
                            exception->GetMessage());
        return;
    }
    createBackgroundSubComponent(m_layout.getBackgroundImageName());
    ZELChildWindow::createSubComponent(m_layout.getFirstNodebyName("Components"));
    ZELChildWindow::showSubComponent();
}

ZELChildWindow::~ZELChildWindow() = default;

void ZELChildWindow::createSubComponent(Node* pComponents)
{
    createPageComponents(pComponents, *this, m_strID, m_dqSubComponents, m_logger,
                         [this](const char*, const char* id) {
                             m_logger.WriteError("[%s] Fail to create components %s",
                                                 "createSubComponent", id);
                         });
}

void ZELChildWindow::showSubComponent()
{
    showComponents(m_dqSubComponents, *this);
}

void ZELChildWindow::activating() {}

void ZELChildWindow::activated() {}

void ZELChildWindow::powerOffKeyReleased() {}

void ZELChildWindow::CoverClose() {}

void ZELChildWindow::CoverOpen() {}

void ZELChildWindow::setSampleData() {}

void ZELChildWindow::createBackgroundSubComponent(std::string strImage)
{
    createBackground(strImage, *this, m_dqSubComponents, m_logger);
}

ZELComponent* ZELChildWindow::getSubComponent(std::string strID)
{
    ZELComponent* component = findComponent(m_dqSubComponents, *this, strID);
    if (!component)
        m_logger.WriteError("[%s] There is not a SubComponent of the name %s", "getSubComponent",
                            strID.c_str());
    return component;
}

void ZELChildWindow::CaptureView()
{
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyMMdd_hhmmss.jpg"));
    const std::string name = "/tmp/screen_" + m_strResourceID + now.toStdString();
    Capture::viewCapture(100, name.c_str());
}

} // namespace PANFx::Windows
