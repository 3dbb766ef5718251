#include "common/tamfx/HashTable.h"

#include "common/tamfx/TextCopy.h"

#include <utility>

namespace TAMFx::Data::Collection {

HashTable::HashTable() = default;

HashTable::~HashTable()
{
    HashTable::ClearAll();
}

void HashTable::AddObj(const char* pszKey, Object* pValue)
{
    if (pszKey)
        store(pszKey, {pValue, nullptr, nullptr});
}

void HashTable::AddObj(const char* pszKey, const char* pszValue)
{
    if (pszKey)
        store(pszKey, {nullptr, Common::copyOfText(pszValue), nullptr});
}

Object* HashTable::getValue(const char* pszKey) const
{
    return At(find(pszKey));
}

const char* HashTable::getStringValue(const char* pszKey) const
{
    return AtString(find(pszKey));
}

void HashTable::Remove(const char* pszKey)
{
    RemoveAt(find(pszKey));
}

void HashTable::RemoveAt(int nIndex)
{
    if (!isIndex(nIndex))
        return;
    if (const char* pszKey = m_entries[static_cast<std::size_t>(nIndex)].pKey.get())
        m_positions.erase(pszKey);
    for (auto& position : m_positions) {
        if (position.second > nIndex)
            --position.second;
    }
    ArrayList::RemoveAt(nIndex);
}

void HashTable::Clear()
{
    m_positions.clear();
    ArrayList::Clear();
}

void HashTable::ClearAll()
{
    // The table is empty before the first object dies, whatever its destructor asks of the table.
    const std::vector<Entry> entries = std::move(m_entries);
    HashTable::Clear();
    for (const Entry& entry : entries)
        freeObject(entry);
}

void HashTable::store(const char* pszKey, Entry entry)
{
    const int nIndex = find(pszKey);
    if (isIndex(nIndex)) {
        Entry& stored = m_entries[static_cast<std::size_t>(nIndex)];
        std::swap(stored.pObject, entry.pObject);
        std::swap(stored.pText, entry.pText);
        if (entry.pObject != stored.pObject)
            freeObject(entry);
        return;
    }
    entry.pKey = Common::copyOfText(pszKey);
    m_entries.push_back(std::move(entry));
    m_positions.emplace(m_entries.back().pKey.get(), Count() - 1);
}

int HashTable::find(const char* pszKey) const
{
    if (!pszKey)
        return -1;
    const auto found = m_positions.find(pszKey);
    return found == m_positions.end() ? -1 : found->second;
}

} // namespace TAMFx::Data::Collection
