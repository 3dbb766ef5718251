#pragma once

#include "components/buttons/ButtonTest.h"
#include "components/pads/ZELKeyButton.h"

#include <functional>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** A key whose inside is open, as it is to an application's derived class. */
class Key : public Opened<Components::ZELKeyButton>
{
public:
    using Opened<Components::ZELKeyButton>::Opened;

    using Components::ZELKeyButton::m_nCode;
    using Components::ZELKeyButton::m_nCode2;
    using Components::ZELKeyButton::m_nLang2Code;
    using Components::ZELKeyButton::m_nLang2Code2;
    using Components::ZELKeyButton::m_nLang2Index;
    using Components::ZELKeyButton::m_nLang2Index2;
    using Components::ZELKeyButton::m_strLang2Title;
    using Components::ZELKeyButton::m_strLang2Title2;

    /** All numbers, in the order of the fields. */
    std::vector<int> numbers() const
    {
        return {m_nCode, m_nCode2, m_nLang2Code, m_nLang2Index, m_nLang2Code2, m_nLang2Index2};
    }
};

/** The fixture of the keyboard's keys: the pictures and the sound of the buttons. */
class KeyButtonTest : public ButtonTest
{
protected:
    // the numbers of the two languages
    static constexpr short first = 1;
    static constexpr short second = 2;

    inline static const std::string hangul = "\xE3\x85\x81"; // one letter of three bytes

    // both languages, plain and shifted, with an index each
    inline static const std::string full =
        "title='a' code='61' code2='41' style='normal' pressstyle='pressed' ";
    inline static const std::string fullLang2 =
        "<lang2 title='x' title2='y' code='3141' code2='3142' index='6' index2='7'/>";

    // a key without any number
    inline static const std::vector<int> none{-1, -1, -1, -1, -1, -1};

    /** A face of one byte. */
    static std::string byte(int value) { return std::string(1, static_cast<char>(value)); }

    Key* key(const std::string& attributes = full, const std::string& children = fullLang2)
    {
        return make<Key>(ok(attributes, children), "ZELKeyButton");
    }

    /** A key with the face "T" and these values; an empty text for no second language at all. */
    Key* keyWith(const std::string& attributes, const std::string& lang2)
    {
        return key("title='T' " + attributes, lang2.empty() ? "" : "<lang2 " + lang2 + "/>");
    }

    static int paints(Key* key, const std::function<void()>& act)
    {
        PaintCounter counter(key);
        counter.reset();
        act();
        EventLoop::deliver();
        return counter.count();
    }

    /** What a key looks like with that face. */
    static QImage faced(const QString& text, const QColor& ground = Qt::green,
                        const std::string& styleName = "normal", const QColor& pen = Qt::black)
    {
        QImage image = filled(size, ground);
        drawText(image, text, QRect(QPoint(0, 0), size), centred, styleName, pen);
        return image;
    }

    static ::testing::AssertionResult shows(Key* key, const QImage& expected)
    {
        return Pixels::same(Pixels::grab(key), expected);
    }
};

} // namespace PANFx::Testing
