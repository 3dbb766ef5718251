#pragma once

#include "components/ZELComponent.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELEvent.h"
#include "resource/Font.h"
#include "resource/SoundFactory.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/SoundProbe.h"
#include "support/Touch.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QTimerEvent>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** A button whose inside is open, as it is to an application's derived class. */
template <class Button>
class Opened : public Button
{
public:
    using Button::Button;

    using Button::m_animation;
    using Button::m_bDimMode;
    using Button::m_bElided;
    using Button::m_bLongPress;
    using Button::m_bLongPressed;
    using Button::m_bPressed;
    using Button::m_bSoundMode;
    using Button::m_imageRect;
    using Button::m_logger;
    using Button::m_nAlign;
    using Button::m_nLongPressCount;
    using Button::m_nOrgX;
    using Button::m_nOrgY;
    using Button::m_nPressOffset;
    using Button::m_pCurImage;
    using Button::m_pDimFont;
    using Button::m_pDownImage;
    using Button::m_pFont;
    using Button::m_pPressFont;
    using Button::m_pTimer;
    using Button::m_pUpImage;
    using Button::m_strAnimation;
    using Button::m_strDimImage;
    using Button::m_strDownImage;
    using Button::m_strTitle;
    using Button::m_strUpImage;
    using Button::m_textRect;

    /** A press and a release that got through, whatever the state of the widget. */
    void forcePress()
    {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        this->mousePressEvent(&press);
    }
    void forceRelease()
    {
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        this->mouseReleaseEvent(&release);
    }
};

/**
 * The fixture of the buttons: pictures of 60 by 30 (up green, down blue, dim yellow) and a sound
 * back end that listens.
 */
class ButtonTest : public PanelTest
{
protected:
    using Types = std::vector<int>;

    // alignments as the fields hold them
    static constexpr int centred = 0x84;
    static constexpr int toTheRight = 0x82;
    static constexpr int toTheLeft = 0x81;

    // where the element of ok() puts a button
    static constexpr QSize size{80, 40};
    static constexpr QRect place{10, 20, 80, 40};

    ButtonTest()
    {
        writePicture("up.png", 60, 30, Qt::green);
        writePicture("down.png", 60, 30, Qt::blue);
        writePicture("dim.png", 60, 30, Qt::yellow);
        Resource::SoundFactory::getInstance()->registerSound(new SoundProbe(m_sounds));
    }

    /** Does this at each touch sound from now on, in the moment in which it is played. */
    void atTouchSound(std::function<void()> action)
    {
        class Watch : public SoundProbe
        {
        public:
            Watch(std::shared_ptr<Sounds> sounds, std::function<void()> action)
                : SoundProbe(std::move(sounds))
                , m_action(std::move(action))
            {
            }
            void playTouchSound() override
            {
                SoundProbe::playTouchSound();
                m_action();
            }

        private:
            std::function<void()> m_action;
        };
        auto* const factory = Resource::SoundFactory::getInstance();
        const std::unique_ptr<Resource::SoundBase> former(factory->getSoundObject());
        factory->registerSound(new Watch(m_sounds, std::move(action)));
    }

    /** A button on the panel, shown. */
    template <class T>
    T* make(const std::string& xml, const std::string& type = "")
    {
        TAMFx::Common::Xml::Node* const node = xml.empty() ? nullptr : element(xml);
        auto* const button =
            new T(&panel(), node ? xml.substr(1, xml.find_first_of(" />") - 1) : std::string("ok"),
                  type, node);
        button->showWindow();
        EventLoop::deliver();
        return button;
    }

    /** An element "ok" of 80 by 40 at 10, 20 with all pictures. */
    static std::string ok(const std::string& attributes = "", const std::string& children = "")
    {
        return "<ok " + attributes +
               "><image up='up.png' down='down.png' dim='dim.png'/>"
               "<position x='10' y='20' width='80' height='40'/>" +
               children + "</ok>";
    }

    static const std::string styled; ///< a title in all three styles

    /** An element "ok" whose button is pushed a little while held. */
    static std::string pushed(const std::string& attributes = "")
    {
        return ok(styled + "animation='elastic_push' " + attributes);
    }

    /** Lets the clock of a held button come round once. */
    template <class T>
    void tick(T* button)
    {
        queueTick(button);
        EventLoop::deliver();
    }
    template <class T>
    void queueTick(T* button)
    {
        QTimerEvent round(1);
        QCoreApplication::sendEvent(button->m_pTimer, &round);
    }

    /** A picture of a black and a white pixel: scaled smoothly, it has greys between. */
    void writeHalves(const std::string& name)
    {
        QImage halves(2, 1, QImage::Format_RGB32);
        halves.setPixelColor(0, 0, Qt::black);
        halves.setPixelColor(1, 0, Qt::white);
        writePicture(name, halves);
    }

    /** How many pixels inside are neither black nor white. */
    static int greys(const QImage& image, const QRect& inside)
    {
        return inside.width() * inside.height() - Pixels::count(image, Qt::black, inside) -
               Pixels::count(image, Qt::white, inside);
    }

    /**
     * What none of our classes takes goes on to QWidget, whose answer is returned: keys are not
     * accepted, and what QWidget does not know gives false.
     */
    static void expectWidgetsAnswers(QWidget* widget)
    {
        QObject* const receiver = widget; // there, event() is open
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        key.accept();
        EXPECT_TRUE(receiver->event(&key));
        EXPECT_FALSE(key.isAccepted());
        QEvent unknown(QEvent::Clipboard);
        EXPECT_FALSE(receiver->event(&unknown));
        widget->setDisabled(true);
        EXPECT_FALSE(receiver->event(&key)) << "of a disabled widget";
        widget->setDisabled(false);
    }

    /** The touch sounds so far. */
    int touches() const
    {
        return static_cast<int>(std::count(m_sounds->begin(), m_sounds->end(), "touch"));
    }

    static Resource::Font* style(const std::string& name)
    {
        return Resource::ZELResourceMgr::getInstance()->getFont(name);
    }

    static QPixmap* picture(const std::string& name)
    {
        return Resource::ZELResourceMgr::getInstance()->getImage(name);
    }

    /** A canvas of a button's size, filled in one colour. */
    static QImage filled(const QSize& size, const QColor& colour)
    {
        return Pixels::canvas(size, colour);
    }

    static void drawText(QImage& image, const QString& text, const QRect& rect, int align,
                         const std::string& styleName, const QColor& colour)
    {
        QPainter painter(&image);
        painter.setFont(*style(styleName)->m_pFont);
        painter.setPen(colour);
        painter.drawText(rect, align, text);
    }

    /** What of a title is painted: which of the styles' colours are to be seen. */
    static std::string coloursIn(const QImage& image)
    {
        std::string found;
        for (const auto& [name, colour] : {std::make_pair("normal", QColor(Qt::black)),
                                           std::make_pair("pressed", QColor(Qt::red)),
                                           std::make_pair("dimmed", QColor(128, 128, 128)),
                                           std::make_pair("shadow", QColor(200, 200, 200))}) {
            if (Pixels::count(image, colour) > 0)
                found += found.empty() ? name : std::string(" ") + name;
        }
        return found;
    }

    std::shared_ptr<SoundProbe::Sounds> m_sounds = std::make_shared<SoundProbe::Sounds>();
};

inline const std::string ButtonTest::styled =
    "title='HHHH' style='normal' pressstyle='pressed' dimstyle='dimmed' ";

} // namespace PANFx::Testing
