#include "resource/LangPad.h"

#include <utility>

namespace PANFx::Resource {

LangPad::LangPad() = default;

LangPad::~LangPad() = default;

void LangPad::clear()
{
    if (!m_strText.isNull())
        m_strText = QString();
}

QString LangPad::getCompleteText(int nCode, int nIndex)
{
    static_cast<void>(nIndex);
    if (nCode == backspaceKey)
        backspace();
    else if (nCode == spaceKey)
        space();
    else
        m_strText += QChar(static_cast<ushort>(nCode));
    return m_strText;
}

QString LangPad::getCompleteText()
{
    return m_strText;
}

void LangPad::backspace()
{
    // for an empty text the length is -1 here, which keeps it as it is
    m_strText = m_strText.left(m_strText.length() - 1);
}

void LangPad::space()
{
    m_strText += QLatin1Char(' ');
}

void LangPad::setCompleteText(QString strText)
{
    m_strText = std::move(strText);
}

} // namespace PANFx::Resource
