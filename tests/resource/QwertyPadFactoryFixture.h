#pragma once

#include "resource/HangulJudge.h"
#include "resource/LangPad.h"
#include "resource/QwertyPadFactory.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

/** A factory whose fields lie open. */
class OpenFactory : public Resource::QwertyPadFactory
{
public:
    using QwertyPadFactory::addPad;
    using QwertyPadFactory::m_logger;
    using QwertyPadFactory::m_nMaxLength;
    using QwertyPadFactory::m_strLang;
    using QwertyPadFactory::m_tblPads;
    using QwertyPadFactory::padOf;
};

/** Tells which operations a factory calls, and when it goes. */
class NotingPad : public Resource::LangPad
{
public:
    explicit NotingPad(std::vector<std::string>& notes, std::string name = "")
        : m_notes(notes)
        , m_name(std::move(name))
    {
    }
    ~NotingPad() override { m_notes.push_back(m_name + "deleted"); }
    NotingPad(const NotingPad&) = delete;
    NotingPad& operator=(const NotingPad&) = delete;

    void clear() override
    {
        m_notes.push_back(m_name + "clear");
        LangPad::clear();
    }
    void setCompleteText(QString strText) override
    {
        m_notes.push_back(m_name + "set " + strText.toStdString());
        LangPad::setCompleteText(strText);
    }

private:
    std::vector<std::string>& m_notes;
    const std::string m_name;
};

/** A factory with room for 100 characters, on which no language was chosen yet. */
class QwertyPadFactoryTest : public ::testing::Test
{
protected:
    QwertyPadFactoryTest() { m_factory.setMaxLength(100); }

    LogCapture& log() { return LogCapture::instance(); }

    /** Types characters, u'<' for backspace; returns what the last key gave, as real text. */
    std::string type(const std::u16string& characters)
    {
        QString text = m_factory.getCompleteText();
        for (const char16_t character : characters) {
            const HangulKey key = hangulKey(character);
            text = m_factory.getCompleteText(key.code, key.index);
        }
        return real(text);
    }

    /** The text that a text in boundary form stands for. */
    static std::string real(const QString& boundary)
    {
        std::string bytes;
        for (const QChar character : boundary) {
            EXPECT_LT(character.unicode(), 0x100) << "no boundary form";
            bytes += static_cast<char>(character.unicode());
        }
        return bytes;
    }

    std::string text() { return real(m_factory.getCompleteText()); }

    /** What a field holds, in boundary form. */
    static QString boundary(const std::string& utf8Text)
    {
        return QString::fromLatin1(utf8Text.c_str());
    }

    void set(const std::string& utf8Text) { m_factory.setCompleteText(boundary(utf8Text)); }

    std::vector<std::string> m_notes; // lives longer than the composers that write in it
    OpenFactory m_factory;
};

} // namespace PANFx::Testing
