#include "windows/PageBuilding.h"

#include "components/ComponentWalk.h"
#include "components/ZELComponent.h"
#include "components/pictures/ZELImageBox.h"
#include "components/support/Picture.h"
#include "resource/ZELResourceMgr.h"

#include <QPalette>
#include <QWidget>

#include <algorithm>

namespace PANFx::Windows {

using Components::ZELComponent;
using Components::ZELImageBox;
using Resource::ZELResourceMgr;

void setUpScreenWidget(QWidget& widget)
{
    static const QPalette black(Qt::black); // its shades are costly to work out
    widget.setPalette(black);
    widget.setGeometry(QRect(QPoint(0, 0), QPoint(799, 479)));
}

// The default language is the empty one, so its path holds a doubled slash, which does no harm.
std::string layoutPath(const std::string& strResourceID)
{
    ZELResourceMgr* resources = ZELResourceMgr::getInstance();
    return resources->getBasePath() + resources->m_strLocale + "/layout/" + strResourceID +
           ".resource";
}

void createBackground(const std::string& strImage, QWidget& parent,
                      std::deque<ZELComponent*>& components, Common::SysLogger& logger)
{
    QPixmap* picture = Components::findPicture(strImage);
    if (!picture) {
        // an empty name has its line from the image manager
        if (!strImage.empty())
            logger.WriteError("[%s] cannot load image: %s", "createBackgroundSubComponent",
                              strImage.c_str());
        return;
    }
    auto* box = new ZELImageBox(&parent, "background", "ZELImageBox", nullptr);
    box->setImage(picture);
    components.push_back(box);
}

void createPageComponents(TAMFx::Common::Xml::Node* pComponents, QWidget& parent,
                          const std::string& strID, std::deque<ZELComponent*>& components,
                          Common::SysLogger& logger,
                          const std::function<void(const char*, const char*)>& onFailure)
{
    if (!pComponents) {
        logger.WriteError("[%s] There is not <Components> tag in the %s.resource file",
                          "createSubComponent", strID.c_str());
        return;
    }
    const std::size_t first = components.size();
    Components::createComponents(pComponents, &parent, components, onFailure);
    ZELComponent::adoptParts(&parent, components, first);
}

void showComponents(const std::deque<ZELComponent*>& components, const QWidget& page)
{
    // by index, since what is shown may add parts or take some out
    for (std::size_t i = 0; i < components.size(); ++i) {
        ZELComponent* const component = components[i];
        if (ZELComponent::isPartOf(&page, component))
            component->showWindow();
    }
}

ZELComponent* findComponent(const std::deque<ZELComponent*>& components, const QWidget& page,
                            const std::string& strID)
{
    const auto found =
        std::find_if(components.begin(), components.end(), [&](ZELComponent* component) {
            return ZELComponent::isPartOf(&page, component) && component->m_strID == strID;
        });
    return found == components.end() ? nullptr : *found;
}

} // namespace PANFx::Windows
