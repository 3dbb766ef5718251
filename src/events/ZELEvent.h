#pragma once

#include "common/Export.h"

#include <QEvent>

#include <string>

/**
 * What components and windows report with: an event made on the heap and posted, never a call.
 * Qt's event loop owns it from the post on. Receivers tell the classes apart by getClassType().
 */
class QTPANFX_EXPORT ZELEvent : public QEvent
{
public:
    /** Without a sender and an id. */
    explicit ZELEvent(QEvent::Type type);

    /** Without a sender. */
    ZELEvent(QEvent::Type type, std::string strID);

    /** @param pSender not owned; null for none */
    ZELEvent(QEvent::Type type, QObject* pSender, std::string strID);

    /** Copies type, sender and id; the copy has not been posted, whatever the original was. */
    ZELEvent(const ZELEvent& other);
    ZELEvent& operator=(const ZELEvent&) = delete;

    ~ZELEvent() override;

    /** Name of the class, by which a receiver knows what to cast to. */
    virtual std::string getClassType();

    /**
     * The event as a ZELEvent, or null for one that is none: an application, or Qt itself, may
     * use any number above QEvent::User for events of another class.
     */
    static ZELEvent* from(QEvent* pEvent);

    QObject* m_pSender = nullptr; ///< the widget or timer that sent it, not owned, may be null
    std::string m_strID;          ///< id of the sender, "" when none was given
};
