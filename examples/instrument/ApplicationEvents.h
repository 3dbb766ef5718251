#pragma once

#include <QEvent>

// The numbers of this application's own events, all in one place so that none is given twice: one
// number stands for one class, and a page may cast by it. Those of the library are in
// events/EventNumbers.h.

/// Posted once a second to the page on screen, as a ZELEvent: there are new readings.
constexpr QEvent::Type EVENT_READING = QEvent::Type(2001);

/// Posted by UpdateService as a ZELUpdateInfoEvent: the images of the new software with their
/// versions.
constexpr QEvent::Type EVENT_UPDATE_INFO = QEvent::Type(2002);

/// Posted by UpdateService as a ZELUpdateStatusEvent: how far each of them has been loaded.
constexpr QEvent::Type EVENT_UPDATE_STATUS = QEvent::Type(2003);

/// Posted at the end of a print job, as a ZELResultEvent with a ReportPrinter::Result.
constexpr QEvent::Type EVENT_PRINTED = QEvent::Type(2004);

/// Posted by SamplesPage to itself once a box of its list has been touched, as a ZELEvent.
constexpr QEvent::Type EVENT_BOX_TOUCHED = QEvent::Type(2005);

/// Posted by Analyser to the page on screen, as a ZELErrorEvent, before each reading that a sensor
/// cannot be trusted with: the code is an Analyser::Fault, the message the name of the channel.
constexpr QEvent::Type EVENT_SENSOR_FAULT = QEvent::Type(2006);

/// Posted by LabelReader as a ZELStringEvent: the first text is the code of a label, the second
/// one the name of the sample, or "" where the label has none.
constexpr QEvent::Type EVENT_LABEL_READ = QEvent::Type(2007);
