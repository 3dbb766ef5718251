#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"

#include <string>

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Windows {

/** Root of everything that has an id and sub-components: windows and components alike. */
class QTPANFX_EXPORT ZELWindow
{
public:
    /** Stores the id, which never changes afterwards. */
    explicit ZELWindow(std::string strID);

    virtual ~ZELWindow();

    /** Builds the sub-components that @p pNode describes. */
    virtual void createSubComponent(TAMFx::Common::Xml::Node* pNode) = 0;

    /** Makes the sub-components visible. */
    virtual void showSubComponent() = 0;

    ZELWindow(const ZELWindow&) = delete;
    ZELWindow& operator=(const ZELWindow&) = delete;

    std::string m_strID; ///< id of the window or component

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELWindow"};
};

} // namespace PANFx::Windows
