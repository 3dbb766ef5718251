#include "resource/ZELLayout.h"

#include "common/systemPath.h"
#include "common/tamfx/XmlException.h"

namespace PANFx::Resource {

using TAMFx::Common::Xml::Node;

ZELLayout::ZELLayout() = default;

ZELLayout::~ZELLayout() = default;

bool ZELLayout::loadLayout(std::string strPath)
{
    m_logger.WriteDebug("[%s] path: %s", "loadLayout", strPath.c_str());
    try {
        m_xmlDoc.removeAll();
        if (m_xmlDoc.LoadXMLFile(Common::systemPath(strPath).c_str()))
            return true;
        m_logger.WriteError("[%s] Cannot load layout file(xml) - %s", "loadLayout",
                            strPath.c_str());
    } catch (TAMFx::Common::Xml::XmlException* exception) {
        m_logger.WriteError("[%s] XmlException: %s", "loadLayout", exception->GetMessage());
    }
    return false;
}

Node* ZELLayout::getFirstNodebyName(std::string strName)
{
    return m_xmlDoc.getNodeByName(strName.c_str());
}

std::string ZELLayout::getBackgroundImageName()
{
    Node* base = m_xmlDoc.getNodeByName("Base");
    if (!base)
        return {};
    Node* background = base->getNodeByName("background");
    if (!background) {
        m_logger.WriteDebug("[%s] no background data", "getBackgroundImageName");
        return {};
    }
    return background->getValue();
}

} // namespace PANFx::Resource
