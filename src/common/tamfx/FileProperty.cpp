#include "common/tamfx/FileProperty.h"

#include "common/tamfx/FileAccess.h"

#include <cerrno>
#include <utility>

namespace TAMFx::Data::Properties {

FileProperty::FileProperty(std::string strPath)
    : m_strPath(std::move(strPath))
{
}

FileProperty::~FileProperty() = default;

void FileProperty::setProperty(const char* pszKey, const char* pszValue)
{
    const std::string strKey = pszKey ? pszKey : "";
    const std::string strValue = pszValue ? pszValue : "";
    if (!PropertyLine::isKey(strKey))
        return;
    if (const int nLine = find(strKey); nLine >= 0) {
        PropertyLine& line = m_lines[static_cast<std::size_t>(nLine)];
        m_bChanged = m_bChanged || line.value() != strValue;
        line.setValue(strValue);
        return;
    }
    const std::string strFirst = m_lines.empty() ? std::string() : m_lines.front().lineBreak();
    const std::string strLineBreak = strFirst.empty() ? std::string(1, '\n') : strFirst;
    if (!m_lines.empty() && m_lines.back().lineBreak().empty())
        m_lines.back().appendLineBreak(strLineBreak);
    m_lines.emplace_back(strKey, strValue, strLineBreak);
    m_bChanged = true;
}

const char* FileProperty::getProperty(const char* pszKey) const
{
    const int nLine = find(pszKey ? pszKey : "");
    return nLine >= 0 ? m_lines[static_cast<std::size_t>(nLine)].value().c_str() : "";
}

bool FileProperty::Update()
{
    std::string strContent;
    for (const PropertyLine& line : m_lines)
        strContent += line.text();
    if (!Common::replaceFile(m_strPath, strContent))
        return false;
    m_bChanged = false;
    return true;
}

int FileProperty::load()
{
    if (m_bChanged)
        return 0;
    std::string strContent;
    const int nError = Common::readFile(m_strPath, strContent);
    if (nError != 0 && nError != ENOENT)
        return nError;
    if (nError == ENOENT)
        strContent.clear();
    std::vector<PropertyLine> lines;
    for (std::string::size_type nBegin = 0; nBegin < strContent.size();) {
        const auto nBreak = strContent.find('\n', nBegin);
        const auto nEnd = nBreak == std::string::npos ? strContent.size() : nBreak + 1;
        lines.emplace_back(strContent.substr(nBegin, nEnd - nBegin));
        nBegin = nEnd;
    }
    m_lines = std::move(lines);
    return 0;
}

int FileProperty::find(const std::string& strKey) const
{
    int nLine = static_cast<int>(m_lines.size()) - 1;
    while (nLine >= 0 && m_lines[static_cast<std::size_t>(nLine)].key() != strKey)
        --nLine;
    return strKey.empty() ? -1 : nLine;
}

} // namespace TAMFx::Data::Properties
