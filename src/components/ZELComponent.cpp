#include "components/ZELComponent.h"

#include "components/ComponentWalk.h"

#include <QWidget>

#include <algorithm>
#include <stdexcept>
#include <unordered_set>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

namespace {

// Every component there is. Never freed: a component may outlive the static objects.
std::unordered_set<const ZELComponent*>& livingComponents()
{
    static auto* const components = new std::unordered_set<const ZELComponent*>;
    return *components;
}

} // namespace

ZELComponent::ZELComponent(std::string strID, std::string strType)
    : ZELWindow(std::move(strID))
    , m_strType(std::move(strType))
{
    livingComponents().insert(this);
}

ZELComponent::~ZELComponent()
{
    livingComponents().erase(this);
}

bool ZELComponent::isAlive(const ZELComponent* pComponent)
{
    return livingComponents().count(pComponent) != 0;
}

bool ZELComponent::isPartOf(const QWidget* pWidget, ZELComponent* pComponent)
{
    return isAlive(pComponent) && pWidget->isAncestorOf(pComponent->getQWidget());
}

void ZELComponent::createSubComponent(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s, Node * pLayout == NULL", "createSubComponent",
                            m_strType.c_str());
        return;
    }
    createComponents(pLayout, getQWidget(), m_dqSubComponents,
                     [this](const char* keyword, const char* id) {
                         m_logger.WriteError("[%s] Fail to create a component (%s, %s)",
                                             "createSubComponent", keyword, id);
                     });
}

void ZELComponent::showSubComponent()
{
    for (ZELComponent* component : m_dqSubComponents) {
        if (isPartOf(getQWidget(), component))
            component->showWindow();
    }
}

void ZELComponent::setLayout(Node*) {}

void ZELComponent::hideSubComponent()
{
    for (ZELComponent* component : m_dqSubComponents) {
        if (isPartOf(getQWidget(), component))
            component->hideWindow();
    }
}

ZELComponent* ZELComponent::getSubComponent(int nIndex)
{
    if (nIndex < 0 || nIndex >= getComponentCount())
        throw std::out_of_range("deque::_M_range_check");
    return m_dqSubComponents[static_cast<size_t>(nIndex)];
}

ZELComponent* ZELComponent::getSubComponent(std::string strID)
{
    const auto found = std::find_if(
        m_dqSubComponents.begin(), m_dqSubComponents.end(), [&](ZELComponent* component) {
            return isPartOf(getQWidget(), component) && component->m_strID == strID;
        });
    return found == m_dqSubComponents.end() ? nullptr : *found;
}

ZELComponent* ZELComponent::findByWidget(const QObject* pWidget)
{
    for (ZELComponent* component : m_dqSubComponents) {
        if (!isPartOf(getQWidget(), component))
            continue;
        if (component->getQWidget() == pWidget)
            return component;
        if (ZELComponent* inner = component->findByWidget(pWidget))
            return inner;
    }
    return nullptr;
}

int ZELComponent::getComponentCount()
{
    return static_cast<int>(m_dqSubComponents.size());
}

void ZELComponent::deleteSubComponent(std::string strID)
{
    m_logger.WriteDebug("deleteSubComponent %s", strID.c_str());
    if (!getSubComponent(strID))
        return;
    m_logger.WriteDebug("deleteSubComponent %s", strID.c_str());
    m_dqSubComponents.pop_front();
}

} // namespace PANFx::Components
