#include "resource/ZELFontMgr.h"

#include "common/Numbers.h"
#include "common/systemPath.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Exception.h"
#include "common/tamfx/Node.h"
#include "common/tamfx/XmlDocument.h"
#include "resource/Font.h"

#include <QFont>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <utility>
#include <vector>

namespace PANFx::Resource {

using Common::toDouble;
using Common::toInt;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::XmlDocument;

namespace {

// Nobody frees a style, because windows of an earlier language may still paint with it. The list
// keeps all of them within reach, so that a leak checker reports real leaks only.
std::vector<Font*>& stylesOfTheProcess()
{
    static auto* styles = new std::vector<Font*>;
    return *styles;
}

// 0 to 99 mean the same on both versions of Qt; beyond, one would wrap around and the other not
void setWeight(QFont& font, int weight)
{
    weight = std::clamp(weight, 0, 99);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // the one way to keep the old scale
    font.setLegacyWeight(weight);
#pragma GCC diagnostic pop
#else
    font.setWeight(weight);
#endif
}

bool isYes(Attribute* attribute)
{
    return std::strcmp(attribute->getValue(), "yes") == 0;
}

void applyAttributes(Font& style, Node* node)
{
    QFont& font = *style.m_pFont;
    if (Attribute* size = node->getAttributeByName("size"))
        font.setPointSize(toInt(size->getValue()));
    if (Attribute* family = node->getAttributeByName("family"))
        font.setFamily(QString::fromUtf8(family->getValue()));
    if (Attribute* weight = node->getAttributeByName("weight"))
        setWeight(font, toInt(weight->getValue()));
    Attribute* italic = node->getAttributeByName("italic");
    font.setStyle(italic && isYes(italic) ? QFont::StyleItalic : QFont::StyleNormal);
    if (Attribute* underline = node->getAttributeByName("underline"))
        font.setUnderline(isYes(underline));
    if (Attribute* space = node->getAttributeByName("space"))
        font.setLetterSpacing(QFont::AbsoluteSpacing, toDouble(space->getValue()));
    if (Attribute* color = node->getAttributeByName("color"))
        style.setColor(color->getValue());
}

} // namespace

ZELFontMgr::ZELFontMgr()
{
    m_tableFonts.setDeleteFlag(false);
}

ZELFontMgr::~ZELFontMgr()
{
    m_tableFonts.ClearAll();
}

void ZELFontMgr::setBasePath(std::string strBasePath)
{
    m_strBasePath = std::move(strBasePath);
}

Font* ZELFontMgr::getFont(std::string strName)
{
    return static_cast<Font*>(m_tableFonts.getValue(strName.c_str()));
}

void ZELFontMgr::changeLocale(std::string strLocale)
{
    m_strLocale = std::move(strLocale);
    const std::string defaultPath = m_strBasePath + "default.style";
    m_strStylePath =
        m_strLocale.empty() ? defaultPath : m_strBasePath + m_strLocale + "/default.style";
    m_tableFonts.Clear();
    if (std::FILE* file = std::fopen(Common::systemPath(m_strStylePath).c_str(), "rb"))
        std::fclose(file);
    else
        m_strStylePath = defaultPath;

    XmlDocument document;
    try {
        if (!document.LoadXMLFile(Common::systemPath(m_strStylePath).c_str()))
            m_logger.WriteError("[%s] Cannot load style file: %s", "changeLocale",
                                m_strStylePath.c_str());
    } catch (TAMFx::Common::Exception* exception) {
        m_logger.WriteDebug("[%s] exception msg(%s)\n", "changeLocale", exception->GetMessage());
        return;
    }
    Node* styles = document.getNodeByName("Font");
    if (!styles)
        return;
    for (int i = 0; i < styles->getChildNodeSize(); ++i) {
        Node* node = styles->getChildNode(i);
        if (!node) {
            m_logger.WriteError("[%s] pFont is NULL \n", "changeLocale");
            continue;
        }
        auto* font = new (std::nothrow) Font;
        if (!font) {
            m_logger.WriteError("[%s] font is NULL \n", "changeLocale");
            continue;
        }
        stylesOfTheProcess().push_back(font);
        applyAttributes(*font, node);
        m_tableFonts.AddObj(node->getName(), font);
    }
}

} // namespace PANFx::Resource
