#include "events/ZELStringEvent.h"

#include "common/SysLogger.h"

#include <utility>

ZELStringEvent::ZELStringEvent(QEvent::Type type, std::string strString1, std::string strString2,
                               std::string strString3, std::string strString4)
    : ZELEvent(type)
    , m_strString1(std::move(strString1))
    , m_strString2(std::move(strString2))
    , m_strString3(std::move(strString3))
    , m_strString4(std::move(strString4))
{
}

ZELStringEvent::~ZELStringEvent() = default;

std::string ZELStringEvent::getString(int n)
{
    switch (n) {
    case 0:
        return m_strID;
    case 1:
        return m_strString1;
    case 2:
        return m_strString2;
    case 3:
        return m_strString3;
    case 4:
        return m_strString4;
    default:
        PANFx::Common::SysLogger("QTPANFx", "ZELStringEvent")
            .WriteError("[%s] %s has no string %d", "getString", m_strID.c_str(), n);
        return {};
    }
}
