#pragma once

/**
 * @file
 * Type numbers of the posted events. All lie above QEvent::User; numbers between those listed
 * have no meaning. The comments name the event class.
 */

#include <QEvent>

constexpr QEvent::Type EVENT_WINDOW_ACTIVATE = QEvent::Type(1550); ///< ZELEvent: brought up
constexpr QEvent::Type EVENT_MOUSE_DOWN = QEvent::Type(1551);      ///< ZELEvent: press on an edit
constexpr QEvent::Type EVENT_MOUSE_UP = QEvent::Type(1552); ///< ZELEvent, ZELRangeEvent from a pad,
                                                            ///< ZELListEvent in lists: the click
constexpr QEvent::Type EVENT_TIMER = QEvent::Type(1557);    ///< ZELEvent: tick of a Timer
constexpr QEvent::Type EVENT_RANGE_CHANGED = QEvent::Type(1558); ///< ZELRangeEvent: new value
constexpr QEvent::Type EVENT_FOCUS_IN = QEvent::Type(1559);      ///< ZELEvent
constexpr QEvent::Type EVENT_FOCUS_OUT = QEvent::Type(1560);     ///< ZELEvent
constexpr QEvent::Type EVENT_TAB_DOWN = QEvent::Type(1561);      ///< ZELEvent: switch of tab
constexpr QEvent::Type EVENT_LONG_PRESS = QEvent::Type(1571);    ///< ZELEvent: a held button ticks
constexpr QEvent::Type EVENT_LONG_PRESS_HELD = QEvent::Type(1572);     ///< ZELEvent: held for long
constexpr QEvent::Type EVENT_PAGE_UP = QEvent::Type(1581);             ///< ZELRangeEvent: page now
constexpr QEvent::Type EVENT_PAGE_DOWN = QEvent::Type(1582);           ///< ZELRangeEvent: page now
constexpr QEvent::Type EVENT_HEADER_DOWN = QEvent::Type(1583);         ///< ZELEvent, ZELListEvent
constexpr QEvent::Type EVENT_HEADER_UP = QEvent::Type(1584);           ///< ZELEvent, ZELListEvent
constexpr QEvent::Type EVENT_LIST_ITEM_CLICK = QEvent::Type(1585);     ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_ITEM_CHECKED = QEvent::Type(1586);   ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_ITEM_UNCHECKED = QEvent::Type(1587); ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_HEADER_CHECKED = QEvent::Type(1588); ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_HEADER_UNCHECKED = QEvent::Type(1589); ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_HEADER_CLICK = QEvent::Type(1590);     ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_ITEM_FOCUS_IN = QEvent::Type(1591);    ///< ZELListEvent
constexpr QEvent::Type EVENT_LIST_ITEM_FOCUS_OUT = QEvent::Type(1592);   ///< ZELListEvent
constexpr QEvent::Type EVENT_NUMPAD_CLOSE = QEvent::Type(1701);          ///< ZELEvent: pad closed
