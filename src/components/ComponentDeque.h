#pragma once

#include "common/Export.h"

#include <cstddef>
#include <deque>
#include <initializer_list>
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
    /// @{
    /** The types of the std::deque that this stands for. */
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
    /// @}

    /** Empty, and without memory of its own. */
    ComponentDeque();

    /** Copies the entries, not the components; of an empty one no memory is taken. */
    ComponentDeque(const ComponentDeque& other);

    /// @{
    /** Takes the entries over in place of its own; the components are left alone. */
    ComponentDeque& operator=(const ComponentDeque& other);
    ComponentDeque& operator=(const Deque& components);
    /// @}

    ~ComponentDeque();

    /** The std::deque itself, which is made if need be. Valid as long as this object. */
    operator Deque&() { return made(); }

    /** The std::deque itself, or an empty one that all share. */
    operator const Deque&() const { return present(); }

    /// @{
    /** As those of std::deque. */
    bool empty() const { return present().empty(); }
    size_type size() const { return present().size(); }
    /// @}

    /// @{
    /** As those of std::deque. Those of an empty one are of no use once an entry is put in. */
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
    const_reverse_iterator crbegin() const { return rbegin(); }
    const_reverse_iterator crend() const { return rend(); }
    /// @}

    /// @{
    /** Not checked, as that of std::deque. */
    reference operator[](size_type nIndex) { return present()[nIndex]; }
    const_reference operator[](size_type nIndex) const { return present()[nIndex]; }
    /// @}

    /// @{
    /** @throw std::out_of_range for a bad index */
    reference at(size_type nIndex) { return present().at(nIndex); }
    const_reference at(size_type nIndex) const { return present().at(nIndex); }
    /// @}

    /// @{
    /** Not to be called on an empty deque, as that of std::deque. */
    reference front() { return present().front(); }
    const_reference front() const { return present().front(); }
    reference back() { return present().back(); }
    const_reference back() const { return present().back(); }
    /// @}

    /// @{
    /** Puts an entry in, null too; the component stays its owner's. */
    void push_front(ZELComponent* pComponent) { made().push_front(pComponent); }
    void push_back(ZELComponent* pComponent) { made().push_back(pComponent); }
    reference emplace_front(ZELComponent* pComponent) { return made().emplace_front(pComponent); }
    reference emplace_back(ZELComponent* pComponent) { return made().emplace_back(pComponent); }
    /// @}

    /// @{
    /** Takes these entries in place of its own; the components are left alone. */
    template <class Iterator>
    void assign(Iterator first, Iterator last)
    {
        *this = Deque(first, last);
    }
    void assign(std::initializer_list<ZELComponent*> components) { *this = Deque(components); }
    /// @}

    /** Takes entries out at the end, or puts @p pComponent in there until there are @p nSize. */
    void resize(size_type nSize, ZELComponent* pComponent = nullptr)
    {
        if (nSize != size())
            made().resize(nSize, pComponent);
    }

    /** Exchanges the entries; places in them stay valid. */
    void swap(ComponentDeque& other) noexcept { m_pDeque.swap(other.m_pDeque); }

    /// @{
    /** Takes an entry out and deletes nothing. Not to be called on an empty deque. */
    void pop_front() { present().pop_front(); }
    void pop_back() { present().pop_back(); }
    /// @}

    /** Puts an entry before a place, null too. @return the place of the new entry */
    iterator insert(const_iterator place, ZELComponent* pComponent);

    /// @{
    /** Takes entries out and deletes no component. @return the place behind them */
    iterator erase(const_iterator place) { return present().erase(place); }
    iterator erase(const_iterator first, const_iterator last)
    {
        return present().erase(first, last);
    }
    /// @}

    /** Takes all entries out and deletes no component. */
    void clear() { present().clear(); }

    /// @{
    /** Whether the entries are the same, in the same order. */
    friend bool operator==(const ComponentDeque& a, const ComponentDeque& b)
    {
        return a.present() == b.present();
    }
    friend bool operator!=(const ComponentDeque& a, const ComponentDeque& b) { return !(a == b); }
    /// @}

private:
    Deque& made();
    Deque& present() const;

    std::unique_ptr<Deque> m_pDeque; ///< null until something is put in
};

} // namespace PANFx::Components
