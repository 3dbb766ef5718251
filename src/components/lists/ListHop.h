#pragma once

#include <QEvent>

#include <string>

class QWidget;
class ZELEvent;

namespace PANFx::Common {
class SysLogger;
}

namespace TAMFx::Data::Collection {
class ArrayList;
}

namespace PANFx::Components {

class ZELComponent;

// What lists, rows and headers have in common.

/** Whether an event is of that class, by its own name for it. */
bool isOfClass(ZELEvent& event, const char* pszClass);

/**
 * Posts what happened in a cell on from its row or header, with place and with sender and id as
 * they are.
 */
void postFromCell(QWidget* pSender, const ZELEvent& event, int nRow, int nColumn, bool bHeader,
                  const std::string& strOwner, Common::SysLogger& logger);

/** Collects the ids of the rows among the sub-components and gives each row its number. */
void numberRows(ZELComponent& owner, TAMFx::Data::Collection::ArrayList& ids);

} // namespace PANFx::Components
