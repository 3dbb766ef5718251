#include "components/ZELComponent.h"

#include "components/ComponentWalk.h"

#include <QWidget>

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

namespace {

// Every component there is, and the widget that it was first found to be a part of. Never freed: a
// component may outlive the static objects.
std::unordered_map<const ZELComponent*, const QWidget*>& livingComponents()
{
    static auto* const components = new std::unordered_map<const ZELComponent*, const QWidget*>;
    return *components;
}

// unlike QWidget::isAncestorOf this goes on above a window, which may be a part as well
bool isInside(const QWidget* pWidget, const QWidget* pPart)
{
    do
        pPart = pPart->parentWidget();
    while (pPart && pPart != pWidget);
    return pPart != nullptr;
}

// By index, since what is shown or hidden may add parts or take some out.
void forEachPart(ZELComponent& owner, void (ZELComponent::*operation)())
{
    for (std::size_t i = 0; i < owner.m_dqSubComponents.size(); ++i) {
        ZELComponent* const component = owner.m_dqSubComponents[i];
        if (ZELComponent::isPartOf(owner.getQWidget(), component))
            (component->*operation)();
    }
}

} // namespace

ZELComponent::ZELComponent(std::string strID, std::string strType)
    : ZELWindow(std::move(strID))
    , m_strType(std::move(strType))
{
    livingComponents().emplace(this, nullptr);
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
    const auto found = livingComponents().find(pComponent);
    if (found == livingComponents().end())
        return false;
    const QWidget*& home = found->second;
    if (home == pWidget)
        return true;
    if (!isInside(pWidget, pComponent->getQWidget()))
        return false;
    if (!home)
        home = pWidget;
    return true;
}

void ZELComponent::adoptParts(const QWidget* pWidget, const std::deque<ZELComponent*>& components,
                              std::size_t nFirst)
{
    for (std::size_t i = nFirst; i < components.size(); ++i)
        isPartOf(pWidget, components[i]);
}

bool ZELComponent::liesIn(const QWidget* pWidget, ZELComponent* pComponent)
{
    return isAlive(pComponent) && isInside(pWidget, pComponent->getQWidget());
}

void ZELComponent::createSubComponent(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s, Node * pLayout == NULL", "createSubComponent",
                            m_strType.c_str());
        return;
    }
    const std::size_t first = m_dqSubComponents.size();
    createComponents(pLayout, getQWidget(), m_dqSubComponents,
                     [this](const char* keyword, const char* id) {
                         m_logger.WriteError("[%s] Fail to create a component (%s, %s)",
                                             "createSubComponent", keyword, id);
                     });
    adoptParts(getQWidget(), m_dqSubComponents, first);
}

void ZELComponent::showSubComponent()
{
    forEachPart(*this, &ZELComponent::showWindow);
}

void ZELComponent::setLayout(Node*) {}

void ZELComponent::hideSubComponent()
{
    forEachPart(*this, &ZELComponent::hideWindow);
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
