#include "components/pads/ZELKeyButton.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "resource/ParseHelper.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int none = -1;
constexpr short defaultLanguage = 1;
constexpr short secondLanguage = 2;

// a face made from a code is one byte, whatever the code is
std::string byteOf(int code)
{
    return std::string(1, static_cast<char>(code & 0xFF));
}

} // namespace

ZELKeyButton::ZELKeyButton(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELImageButton(pParent, std::move(strID), std::move(strType))
{
    ZELKeyButton::setLayout(pLayout);
}

ZELKeyButton::~ZELKeyButton() = default;

QWidget* ZELKeyButton::getQWidget()
{
    return this;
}

void ZELKeyButton::reset()
{
    m_pDownImage = nullptr;
    m_pUpImage = nullptr;
    m_pCurImage = nullptr;
    m_strDownImage.clear();
    m_strUpImage.clear();
    m_strDimImage.clear();
    m_nCode = none;
    m_nCode2 = none;
    m_nLang2Code = none;
    m_nLang2Index = none;
    m_nLang2Code2 = none;
    m_nLang2Index2 = none;
}

void ZELKeyButton::setLayout(Node* pLayout)
{
    reset();
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    std::string face = readFace(pLayout);
    if (Node* lang2 = pLayout->getNodeByName("lang2"))
        readSecondLanguage(lang2);
    std::string down;
    std::string up;
    std::string dim;
    ParseHelper::getButtonImage(pLayout->getNodeByName("image"), down, up, dim);
    const QRect place = readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect();
    setTitle(std::move(face));
    setImages(std::move(down), std::move(up), std::move(dim));
    setGeometry(place);
}

std::string ZELKeyButton::readFace(Node* pLayout)
{
    Attribute* title = pLayout->getAttributeByName("title");
    if (!title)
        return {};
    if (Attribute* code = pLayout->getAttributeByName("code"))
        m_nCode = stringToInt16(code->getValue());
    if (Attribute* code = pLayout->getAttributeByName("code2"))
        m_nCode2 = stringToInt16(code->getValue());
    m_pFont = fontNamedBy(pLayout, "style");
    m_pPressFont = fontNamedBy(pLayout, "pressstyle");
    if (Attribute* animation = pLayout->getAttributeByName("animation"))
        m_strAnimation = animation->getValue();
    Attribute* longPress = pLayout->getAttributeByName("longpress");
    m_logger.WriteDebug("[%s] longpress pointer(%p)", "setLayout",
                        static_cast<const void*>(longPress));
    if (longPress)
        setLongPress(std::strcmp(longPress->getValue(), "false") != 0);
    return title->getValue();
}

void ZELKeyButton::readSecondLanguage(Node* pLang2)
{
    const auto read = [pLang2](const char* name, auto&& take) {
        if (Attribute* attribute = pLang2->getAttributeByName(name))
            take(attribute->getValue());
    };
    read("title", [this](const char* value) { m_strLang2Title = value; });
    read("title2", [this](const char* value) { m_strLang2Title2 = value; });
    read("code", [this](const char* value) { m_nLang2Code = stringToInt16(value); });
    read("code2", [this](const char* value) { m_nLang2Code2 = stringToInt16(value); });
    read("index", [this](const char* value) { m_nLang2Index = stringToInt10(value); });
    read("index2", [this](const char* value) { m_nLang2Index2 = stringToInt10(value); });
}

bool ZELKeyButton::isInSecondLanguage(short nLang) const
{
    return nLang == secondLanguage && m_nLang2Code != none;
}

int ZELKeyButton::getKeyCode(short nLang, bool bShift)
{
    const bool second = isInSecondLanguage(nLang);
    const int plain = second ? m_nLang2Code : m_nCode;
    const int shifted = second ? m_nLang2Code2 : m_nCode2;
    return bShift && shifted != none ? shifted : plain;
}

// The shifted code decides, not the shifted index.
int ZELKeyButton::getKeyIndex(bool bShift)
{
    return bShift && m_nLang2Code2 != none ? m_nLang2Index2 : m_nLang2Index;
}

void ZELKeyButton::setShiftMode(short nLang, bool bShift)
{
    if (isInSecondLanguage(nLang)) {
        if (m_nLang2Code2 == none)
            return;
        m_logger.WriteDebug("setShiftMode::SECOND_LANG\n");
        setTitle(bShift ? m_strLang2Title2 : m_strLang2Title);
    } else {
        if (m_nCode2 == none)
            return;
        const std::string face = byteOf(bShift ? m_nCode2 : m_nCode);
        m_logger.WriteDebug("[%s] DEFAULT_LANG %s", "setShiftMode", face.c_str());
        setTitle(face);
    }
    update();
}

// Back in the first language a key without a code shows the byte of -1.
void ZELKeyButton::changeKeyTitle(short nLang)
{
    if (isInSecondLanguage(nLang))
        setTitle(m_strLang2Title.empty() ? byteOf(m_nLang2Code) : m_strLang2Title);
    else if (nLang == defaultLanguage)
        setTitle(byteOf(m_nCode));
    else
        return;
    update();
}

int ZELKeyButton::stringToInt10(std::string strNumber)
{
    char* end = nullptr;
    const long value = std::strtol(strNumber.c_str(), &end, 10);
    if (end == strNumber.c_str())
        return none;
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

int ZELKeyButton::stringToInt16(std::string strNumber)
{
    char* end = nullptr;
    const long long value = std::strtoll(strNumber.c_str(), &end, 16); // of one size everywhere
    if (end == strNumber.c_str())
        return none;
    return static_cast<int>(
        static_cast<unsigned int>(std::clamp<long long>(value, INT_MIN, UINT_MAX)));
}

unsigned short ZELKeyButton::stringToQChar(std::string strNumber)
{
    return static_cast<unsigned short>(stringToInt16(std::move(strNumber)));
}

void ZELKeyButton::mousePressEvent(QMouseEvent*)
{
    if (m_bDimMode)
        return;
    press();
    hold();
}

void ZELKeyButton::mouseReleaseEvent(QMouseEvent* pEvent)
{
    ZELImageButton::mouseReleaseEvent(pEvent);
}

} // namespace PANFx::Components
