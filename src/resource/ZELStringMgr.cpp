#include "resource/ZELStringMgr.h"

#include "common/systemPath.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Exception.h"
#include "common/tamfx/Node.h"
#include "common/tamfx/NodeList.h"
#include "common/tamfx/XmlDocument.h"

#include <memory>
#include <utility>

namespace PANFx::Resource {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::NodeList;
using TAMFx::Common::Xml::XmlDocument;

namespace {

constexpr const char* rowName = "String";
constexpr const char* keyName = "key";
constexpr int defaultColumn = 1;

int columnOf(const std::string& locale)
{
    static constexpr struct
    {
        const char* locale;
        int column;
    } columns[] = {{"kr", 0},  {"esp", 2}, {"ita", 3}, {"fra", 4}, {"ger", 5},
                   {"rus", 6}, {"pol", 7}, {"chn", 8}, {"por", 9}};
    for (const auto& entry : columns) {
        if (locale == entry.locale)
            return entry.column;
    }
    return defaultColumn;
}

} // namespace

ZELStringMgr::ZELStringMgr() = default;

ZELStringMgr::~ZELStringMgr() = default;

void ZELStringMgr::setBasePath(std::string strBasePath)
{
    m_strBasePath = std::move(strBasePath);
    m_logger.WriteDebug("[%s] m_strBasePath:%s", "setBasePath", m_strBasePath.c_str());
}

bool ZELStringMgr::changeLocale(std::string strLocale)
{
    const std::string path = m_strBasePath + "StringTable.Resource";
    m_logger.WriteDebug("[%s] strPath = %s", "changeLocale", path.c_str());
    const int column = columnOf(strLocale);

    XmlDocument document;
    document.setColumn(rowName, keyName, column);
    try {
        if (!document.LoadXMLFile(Common::systemPath(path).c_str())) {
            m_logger.WriteError("[%s] Cannot access layout file: %s", "changeLocale", path.c_str());
            return false;
        }
    } catch (TAMFx::Common::Exception* exception) {
        m_logger.WriteError("[%s] LoadXMLFile exception msg(%s)", "changeLocale",
                            exception->GetMessage());
        return false;
    }
    const std::unique_ptr<NodeList> entries(document.getNodeListByName(rowName));
    if (!entries) {
        m_logger.WriteError("[%s] m_xmlDoc.getNodeListByName(\"String\") == NULL", "changeLocale");
        return false;
    }
    for (int i = 0; i < entries->getNodeCount(); ++i) {
        Node* entry = entries->getNode(i);
        Attribute* key = entry ? entry->getAttributeByName(keyName) : nullptr;
        Node* text = key ? entry->getChildNode(0) : nullptr;
        if (!text)
            continue;
        if (*text->getValue() != '\0')
            m_tableStrings.AddObj(key->getValue(), text->getValue());
        else
            m_tableStrings.Remove(key->getValue());
    }
    return true;
}

std::string ZELStringMgr::getLocaleString(std::string strKey)
{
    return m_tableStrings.getStringValue(strKey.c_str());
}

} // namespace PANFx::Resource
