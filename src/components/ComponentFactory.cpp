#include "components/ComponentFactory.h"

#include "components/ComponentTable.h"

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

namespace {

ZELComponent* createFrom(const std::vector<ComponentEntry>& table, QWidget* parent,
                         const std::string& keyword, std::string id, Node* layout)
{
    for (const ComponentEntry& entry : table) {
        if (keyword == entry.keyword)
            return entry.create(parent, std::move(id), entry.type, layout);
    }
    return nullptr;
}

} // namespace

ComponentFactory* ComponentFactory::m_pInstance = nullptr;

ComponentFactory* ComponentFactory::getInstance()
{
    if (!m_pInstance)
        m_pInstance = new ComponentFactory;
    return m_pInstance;
}

void ComponentFactory::destroyInstance()
{
    delete m_pInstance;
    m_pInstance = nullptr;
}

ComponentFactory::ComponentFactory() = default;

ComponentFactory::~ComponentFactory() = default;

ZELComponent* ComponentFactory::createComponent(QWidget* pParent, std::string strType,
                                                std::string strID, Node* pLayout)
{
    if (strType.find("button") != std::string::npos)
        return createComponent_button(pParent, std::move(strType), std::move(strID), pLayout);
    if (strType.find("list") != std::string::npos)
        return createComponent_list(pParent, std::move(strType), std::move(strID), pLayout);
    return createFrom(componentTable(), pParent, strType, std::move(strID), pLayout);
}

ZELComponent* ComponentFactory::createComponent_button(QWidget* pParent, std::string strType,
                                                       std::string strID, Node* pLayout)
{
    return createFrom(buttonTable(), pParent, strType, std::move(strID), pLayout);
}

ZELComponent* ComponentFactory::createComponent_list(QWidget* pParent, std::string strType,
                                                     std::string strID, Node* pLayout)
{
    return createFrom(listTable(), pParent, strType, std::move(strID), pLayout);
}

} // namespace PANFx::Components
