#include "resource/QwertyPadFactory.h"

#include "resource/EnPad.h"
#include "resource/EspPad.h"
#include "resource/KrPad.h"
#include "resource/LangPad.h"

#include <memory>
#include <stdexcept>

namespace PANFx::Resource {

namespace {

constexpr const char* noLanguage = "NULL";

// A composer as an entry of the table, which frees it.
class PadEntry : public TAMFx::Data::Object
{
public:
    explicit PadEntry(LangPad* pPad)
        : m_pad(pPad)
    {
    }
    ~PadEntry() override = default;
    PadEntry(const PadEntry&) = delete;
    PadEntry& operator=(const PadEntry&) = delete;

    const std::unique_ptr<LangPad> m_pad;
};

// The two directions stay paired: what an application was given it feeds back.
QString toBoundary(const QString& text)
{
    return QString::fromLatin1(text.toUtf8().constData());
}

QString fromBoundary(const QString& text)
{
    return QString::fromUtf8(text.toLatin1().constData());
}

} // namespace

QwertyPadFactory::QwertyPadFactory()
{
    m_tblPads.setDeleteFlag(true);
    addPad(noLanguage, new LangPad);
    addPad("kr", new KrPad);
    addPad("en", new EnPad);
    for (const char* pszLang : {"esp", "fra", "ger", "ita", "por"})
        addPad(pszLang, new EspPad);
    for (const char* pszLang : {"rus", "chn"})
        addPad(pszLang, new EnPad);
}

QwertyPadFactory::~QwertyPadFactory()
{
    m_tblPads.ClearAll();
}

void QwertyPadFactory::addPad(const char* pszLang, LangPad* pPad)
{
    auto entry = std::make_unique<PadEntry>(pPad);
    if (pszLang) // else the table would not take it
        m_tblPads.AddObj(pszLang, entry.release());
}

LangPad* QwertyPadFactory::padOf(const char* pszLang) const
{
    TAMFx::Data::Object* entry = m_tblPads.getValue(pszLang);
    return entry ? static_cast<PadEntry*>(entry)->m_pad.get() : nullptr;
}

LangPad* QwertyPadFactory::currentPad() const
{
    LangPad* pad = padOf(m_strLang.c_str());
    return pad ? pad : padOf(noLanguage);
}

void QwertyPadFactory::changeLang(const char* pszLang)
{
    if (!pszLang) {
        m_logger.WriteError("[%s] lang is NULL", "changeLang");
        return;
    }
    LangPad* old = currentPad();
    if (!old)
        return;
    m_strLang = pszLang;
    if (m_strLang == "")
        m_strLang = noLanguage;
    LangPad* next = padOf(m_strLang.c_str());
    if (!next)
        return;
    // in this order, so that changing to the current language wipes the text
    next->setCompleteText(old->getCompleteText());
    old->clear();
}

QString QwertyPadFactory::getCompleteText(int nCode, int nIndex)
{
    LangPad* pad = currentPad();
    if (!pad)
        return QString();
    const QString before = pad->getCompleteText();
    const QString after = pad->getCompleteText(nCode, nIndex);
    if (m_nMaxLength < after.length()) {
        pad->setCompleteText(before);
        return toBoundary(before);
    }
    return toBoundary(after);
}

QString QwertyPadFactory::getCompleteText()
{
    LangPad* pad = currentPad();
    if (!pad)
        return QString();
    const QString text = pad->getCompleteText();
    if (m_nMaxLength < text.length())
        pad->setCompleteText(text.left(m_nMaxLength));
    return toBoundary(pad->getCompleteText());
}

void QwertyPadFactory::setCompleteText(QString strText)
{
    LangPad* pad = currentPad();
    if (!pad) {
        m_logger.WriteError("[QwertyPadFactory::setCompleteText] pPad is NULL\n");
        return;
    }
    pad->setCompleteText(fromBoundary(strText).left(m_nMaxLength));
}

int QwertyPadFactory::getTextLength()
{
    LangPad* pad = currentPad();
    return pad ? static_cast<int>(pad->getCompleteText().length()) : 0;
}

void QwertyPadFactory::clearText()
{
    try {
        // no falling back on the composer for unknown languages here
        if (LangPad* pad = padOf(m_strLang.c_str()))
            pad->clear();
    } catch (const std::length_error& error) {
        m_logger.WriteDebug("[%s] Length error: %s", "clearText", error.what());
    }
}

} // namespace PANFx::Resource
