#pragma once

#include "common/tamfx/ArrayList.h"

#include <string_view>
#include <unordered_map>

namespace TAMFx::Data::Collection {

/**
 * Collection of objects and texts under keys. Keys and texts are copied.
 *
 * Positions are those of insertion: replacing a value keeps its place, removing one moves the
 * later ones down. With the delete flag set (it is off in a new table) the table owns its objects
 * and frees them in ClearAll, Remove, RemoveAt, on replacement and when it dies. A null key is no
 * key: nothing is stored under it, found by it or removed by it.
 */
class TAMFX_EXPORT HashTable : public ArrayList
{
public:
    /** Empty, with the delete flag off. */
    HashTable();
    ~HashTable() override;

    /** Stores an object, in place of the key's present value. With a null key it is not taken. */
    void AddObj(const char* pszKey, Object* pValue);

    /** Stores a copy of a text, in place of the key's present value; null counts as "". */
    void AddObj(const char* pszKey, const char* pszValue);

    /** Object of a key. Null when the key is absent or holds a text. */
    Object* getValue(const char* pszKey) const;

    /** Object at a position, 0 to getCount() - 1. Null for a bad index or where a text is. */
    Object* getValue(int nIndex) const { return At(nIndex); }

    /** Text of a key. "" when the key is absent or holds an object. */
    const char* getStringValue(const char* pszKey) const;

    /** Removes the entry of a key, if there is one. */
    void Remove(const char* pszKey);

    void RemoveAt(int nIndex) override;

    /** Empties the table without freeing any object. */
    void Clear() override;

    /** Empties the table and frees the objects if the delete flag is set. */
    void ClearAll();

    /** Number of entries. */
    int getCount() const { return Count(); }

private:
    void store(const char* pszKey, Entry entry);
    int find(const char* pszKey) const;

    std::unordered_map<std::string_view, int> m_positions; ///< the keys lie in the entries
};

} // namespace TAMFx::Data::Collection
