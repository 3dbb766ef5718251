#include "components/ComponentDeque.h"

namespace PANFx::Components {

ComponentDeque::ComponentDeque() = default;

ComponentDeque::ComponentDeque(const ComponentDeque& other)
{
    *this = other;
}

ComponentDeque& ComponentDeque::operator=(const ComponentDeque& other)
{
    if (this != &other)
        *this = other.present();
    return *this;
}

ComponentDeque& ComponentDeque::operator=(const Deque& components)
{
    if (components.empty())
        clear();
    else
        made() = components;
    return *this;
}

ComponentDeque::~ComponentDeque() = default;

ComponentDeque::iterator ComponentDeque::insert(const_iterator place, ZELComponent* pComponent)
{
    // the place may be the end of the empty one that all share
    const auto nIndex = place - begin();
    return made().insert(made().begin() + nIndex, pComponent);
}

ComponentDeque::Deque& ComponentDeque::made()
{
    if (!m_pDeque)
        m_pDeque = std::make_unique<Deque>();
    return *m_pDeque;
}

/** Without a deque of its own an empty one, into which nothing is ever put. */
ComponentDeque::Deque& ComponentDeque::present() const
{
    static Deque* const pEmpty = new Deque; // never freed: components may outlive the statics
    return m_pDeque ? *m_pDeque : *pEmpty;
}

} // namespace PANFx::Components
