#pragma once

#include "common/tamfx/Export.h"
#include "common/tamfx/Object.h"

#include <memory>
#include <vector>

/** Collections of objects and texts. */
namespace TAMFx::Data::Collection {

/**
 * Ordered collection of objects and texts.
 *
 * Texts are copied. Objects are only pointed to, unless the delete flag is set: then the list
 * owns them and frees them in RemoveAt and when it dies. Clear never frees an object. The flag is
 * off in a new list. A bad index is harmless everywhere.
 */
class TAMFX_EXPORT ArrayList
{
public:
    /** Empty, with the delete flag off. */
    ArrayList();
    ArrayList(const ArrayList&) = delete;
    ArrayList& operator=(const ArrayList&) = delete;
    virtual ~ArrayList();

    /** Appends an object, null too; see the delete flag for who frees it. */
    void Add(Object* pObject);

    /** Appends a copy of the text; null counts as "". */
    void Add(const char* pszText);

    /** Object at a position, counted from 0. Null for a bad index and where a text is stored. */
    Object* At(int nIndex) const;

    /** Text at a position, counted from 0. "" for a bad index and where an object is stored. */
    const char* AtString(int nIndex) const;

    /** Number of entries. */
    int Count() const { return static_cast<int>(m_entries.size()); }

    /** Removes one entry, freeing its object if the delete flag is set; later ones move down. */
    virtual void RemoveAt(int nIndex);

    /** Empties the collection without freeing any object, whatever the delete flag says. */
    virtual void Clear();

    /** Says whether this collection owns its objects (true) or only points to them (false). */
    void setDeleteFlag(bool bDelete) { m_bDelete = bDelete; }

protected:
    /** What is stored at one position. */
    struct Entry
    {
        Object* pObject = nullptr;     ///< null where a text is stored; owned with the delete flag
        std::unique_ptr<char[]> pText; ///< null where an object is stored
        std::unique_ptr<char[]> pKey;  ///< null unless the entry was stored under a key
    };

    /** Whether there is an entry at that position. */
    bool isIndex(int nIndex) const { return nIndex >= 0 && nIndex < Count(); }

    /** Frees the object of an entry that has left the collection, if the delete flag is set. */
    void freeObject(const Entry& entry) const;

    std::vector<Entry> m_entries;

private:
    bool m_bDelete = false;
};

} // namespace TAMFx::Data::Collection
