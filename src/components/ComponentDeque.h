#pragma once

#include "common/Export.h"

#include <cstddef>
#include <deque>
#include <memory>

namespace PANFx::Components {

class ZELComponent;

/**
 * A deque of components, not owned, that takes no memory until something is put into it: most
 * components have no sub-components, and an empty std::deque of the standard library at hand
 * takes more than half a kilobyte. It stands for a std::deque wherever one is asked for.
 */
class QTPANFX_EXPORT ComponentDeque
{
public:
    using Deque = std::deque<ZELComponent*>;
    using value_type = Deque::value_type;
    using size_type = Deque::size_type;
    using difference_type = Deque::difference_type;
    using reference = Deque::reference;
    using const_reference = Deque::const_reference;
    using iterator = Deque::iterator;
    using const_iterator = Deque::const_iterator;
    using reverse_iterator = Deque::reverse_iterator;
    using const_reverse_iterator = Deque::const_reverse_iterator;

    ComponentDeque();
    ComponentDeque(const ComponentDeque& other);
    ComponentDeque& operator=(const ComponentDeque& other);
    ComponentDeque& operator=(const Deque& components);
    ~ComponentDeque();

    operator Deque&() { return made(); }
    operator const Deque&() const { return present(); }

    bool empty() const { return present().empty(); }
    size_type size() const { return present().size(); }

    iterator begin() { return present().begin(); }
    iterator end() { return present().end(); }
    const_iterator begin() const { return present().begin(); }
    const_iterator end() const { return present().end(); }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }
    reverse_iterator rbegin() { return present().rbegin(); }
    reverse_iterator rend() { return present().rend(); }
    const_reverse_iterator rbegin() const { return present().rbegin(); }
    const_reverse_iterator rend() const { return present().rend(); }

    reference operator[](size_type nIndex) { return present()[nIndex]; }
    const_reference operator[](size_type nIndex) const { return present()[nIndex]; }
    /** @throw std::out_of_range for a bad index */
    reference at(size_type nIndex) { return present().at(nIndex); }
    const_reference at(size_type nIndex) const { return present().at(nIndex); }
    reference front() { return present().front(); }
    const_reference front() const { return present().front(); }
    reference back() { return present().back(); }
    const_reference back() const { return present().back(); }

    void push_front(ZELComponent* pComponent) { made().push_front(pComponent); }
    void push_back(ZELComponent* pComponent) { made().push_back(pComponent); }
    void pop_front() { present().pop_front(); }
    void pop_back() { present().pop_back(); }
    iterator insert(const_iterator place, ZELComponent* pComponent);
    iterator erase(const_iterator place) { return present().erase(place); }
    iterator erase(const_iterator first, const_iterator last)
    {
        return present().erase(first, last);
    }
    void clear() { present().clear(); }

private:
    Deque& made();
    Deque& present() const;

    std::unique_ptr<Deque> m_pDeque; ///< null until something is put in
};

} // namespace PANFx::Components
