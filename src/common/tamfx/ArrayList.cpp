#include "common/tamfx/ArrayList.h"

#include "common/tamfx/TextCopy.h"

#include <utility>

namespace TAMFx::Data::Collection {

ArrayList::ArrayList() = default;

ArrayList::~ArrayList()
{
    // The list is empty before the first object dies, whatever its destructor asks of the list.
    const std::vector<Entry> entries = std::move(m_entries);
    m_entries.clear();
    for (const Entry& entry : entries)
        freeObject(entry);
}

void ArrayList::Add(Object* pObject)
{
    m_entries.push_back({pObject, nullptr, nullptr});
}

void ArrayList::Add(const char* pszText)
{
    m_entries.push_back({nullptr, Common::copyOfText(pszText), nullptr});
}

Object* ArrayList::At(int nIndex) const
{
    return isIndex(nIndex) ? m_entries[static_cast<std::size_t>(nIndex)].pObject : nullptr;
}

const char* ArrayList::AtString(int nIndex) const
{
    if (!isIndex(nIndex))
        return "";
    const Entry& entry = m_entries[static_cast<std::size_t>(nIndex)];
    return entry.pText ? entry.pText.get() : "";
}

void ArrayList::RemoveAt(int nIndex)
{
    if (!isIndex(nIndex))
        return;
    const auto place = m_entries.begin() + nIndex;
    const Entry removed = std::move(*place);
    m_entries.erase(place);
    freeObject(removed);
}

void ArrayList::Clear()
{
    m_entries.clear();
}

void ArrayList::freeObject(const Entry& entry) const
{
    if (m_bDelete)
        delete entry.pObject;
}

} // namespace TAMFx::Data::Collection
