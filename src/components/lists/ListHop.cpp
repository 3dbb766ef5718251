#include "components/lists/ListHop.h"

#include "common/tamfx/ArrayList.h"
#include "components/SubComponents.h"
#include "components/lists/ZELListItem.h"
#include "components/support/PostToParent.h"
#include "events/ZELListEvent.h"

#include <memory>

namespace PANFx::Components {

bool isOfClass(ZELEvent& event, const char* pszClass)
{
    return event.getClassType() == pszClass;
}

void postFromCell(QWidget* pSender, const ZELEvent& event, int nRow, int nColumn, bool bHeader,
                  const std::string& strOwner, Common::SysLogger& logger)
{
    postToParent(pSender,
                 std::make_unique<ZELListEvent>(event.type(), event.m_pSender, event.m_strID, nRow,
                                                nColumn, bHeader),
                 strOwner, logger, "event");
}

void numberRows(ZELComponent& owner, TAMFx::Data::Collection::ArrayList& ids)
{
    ids.Clear();
    for (int i = 0; i < owner.getComponentCount(); ++i) {
        ZELComponent* component = subComponentAt(owner, i);
        if (!component || component->m_strType != "ZELListItem")
            continue;
        static_cast<ZELListItem*>(component)->m_nRow = ids.Count();
        ids.Add(component->m_strID.c_str());
    }
}

} // namespace PANFx::Components
