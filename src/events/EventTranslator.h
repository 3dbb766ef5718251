#pragma once

#include "common/Export.h"

class QEvent;
class QWidget;

/** Hands an event of the library on to another widget. */
class QTPANFX_EXPORT EventTranslator
{
public:
    virtual ~EventTranslator();

    /**
     * Posts a copy of @p pEvent to @p pTarget when it is a ZELEvent, a ZELListEvent or a
     * ZELRangeEvent, told by getClassType(). The incoming event is left to its owner.
     * @return true after a post; false for null, for a type below 1551 and for any other class
     */
    static bool eventHandler(QEvent* pEvent, QWidget* pTarget);
};
