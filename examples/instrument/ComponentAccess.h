#pragma once

#include "components/ZELComponent.h"

#include <QEvent>

#include <deque>
#include <string>

class ZELListEvent;
class ZELRangeEvent;

/// What pages and dialogs of this instrument do alike with their components.

/// The component as one of the class T, or null if there is none or it is of another type.
template <class T>
T* componentAs(PANFx::Components::ZELComponent* pComponent, const char* pszType)
{
    const bool bFits = pComponent != nullptr && pComponent->m_strType == pszType;
    return bFits ? static_cast<T*>(pComponent) : nullptr;
}

/// The component of that id among these, or on a page of a tab among them; null if there is none.
PANFx::Components::ZELComponent*
findComponent(const std::deque<PANFx::Components::ZELComponent*>& components,
              const std::string& strID);

/// The id of the component that reports with this event, or "".
std::string senderID(QEvent* pEvent);

/// The id of the component that was touched and let go, or "" for any other event. The buttons of
/// a radio group come without an id.
std::string touchedID(QEvent* pEvent);

/// A text of the string table, in the language of the day; the key begins with "@".
std::string localText(const std::string& strKey);

/// The text of that key, a colon as the language of the day writes it, and the value.
std::string captioned(const std::string& strKey, const std::string& strValue);

/// Gives a label another text. Null, or anything but a label, is left alone.
void showText(PANFx::Components::ZELComponent* pLabel, const std::string& strText);

/// What a list reports with this event, or null for an event of another kind.
const ZELListEvent* listEvent(QEvent* pEvent);

/// What a range, a pad or a page turner reports with this event, or null for one of another kind.
const ZELRangeEvent* rangeEvent(QEvent* pEvent);
