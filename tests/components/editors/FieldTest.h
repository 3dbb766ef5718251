#pragma once

#include "components/editors/ZELImageEdit.h"
#include "resource/Font.h"
#include "resource/ZELResourceMgr.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"
#include "support/Touch.h"

#include <QFocusEvent>
#include <QFont>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace PANFx::Testing {

/** A field whose inside is open, as it is to an application's derived class. */
template <class Edit>
class OpenField : public Edit
{
public:
    using Edit::Edit;

    using Edit::m_bDimMode;
    using Edit::m_nAlign;
    using Edit::m_nEchoMode;
    using Edit::m_nElideMode;
    using Edit::m_nElideType;
    using Edit::m_nMaxLength;
    using Edit::m_paddingRect;
    using Edit::m_pCurEnd;
    using Edit::m_pCurMid;
    using Edit::m_pCurStart;
    using Edit::m_pDimEnd;
    using Edit::m_pDimFont;
    using Edit::m_pDimMid;
    using Edit::m_pDimStart;
    using Edit::m_pDownEnd;
    using Edit::m_pDownMid;
    using Edit::m_pDownStart;
    using Edit::m_pFont;
    using Edit::m_pUpEnd;
    using Edit::m_pUpMid;
    using Edit::m_pUpStart;
    using Edit::m_strPlaceholder;
    using Edit::m_strText;

    /** A press and a release that got through, whatever the state of the widget. */
    void forcePress(int x = 1)
    {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(x, 1), QPointF(x, 1), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        this->mousePressEvent(&press);
    }
    void forceRelease()
    {
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        this->mouseReleaseEvent(&release);
    }
    void forceFocus(QEvent::Type type)
    {
        QFocusEvent event(type, Qt::OtherFocusReason);
        if (type == QEvent::FocusIn)
            this->focusInEvent(&event);
        else
            this->focusOutEvent(&event);
    }
};

/**
 * The fixture of what the image editors look like and report: three frames of pieces in sizes of
 * their own, each state in colours of its own.
 */
class FieldTest : public PanelTest
{
protected:
    using Types = std::vector<int>;

    // alignments as the fields hold them
    static constexpr int centred = 0x84;
    static constexpr int toTheRight = 0x82;
    static constexpr int toTheLeft = 0x81;

    // where the element of field() puts an edit, and what it leaves for the text
    static constexpr QRect place{10, 20, 200, 44};
    static constexpr QRect textArea{8, 0, 184, 44};

    enum State { up, down, dim };

    FieldTest()
    {
        for (const State state : {up, down, dim}) {
            writePicture(piece(state, "start"), 10, 40, colour(state));
            writePicture(piece(state, "mid"), 4, 36, colour(state).lighter(130));
            writePicture(piece(state, "end"), 14, 38, colour(state).darker(150));
        }
    }

    static std::string piece(State state, const std::string& which)
    {
        static const char* const names[] = {"up", "down", "dim"};
        return std::string(names[state]) + "_" + which + ".png";
    }

    static QColor colour(State state)
    {
        static const QColor colours[] = {{180, 220, 180}, {180, 180, 230}, {190, 190, 190}};
        return colours[state];
    }

    /** The element of one frame. */
    static std::string frameOf(State state, const std::string& element)
    {
        return "<" + element + " start='" + piece(state, "start") + "' mid='" +
               piece(state, "mid") + "' end='" + piece(state, "end") + "'/>";
    }

    /** An element "ok" of 200 by 44 at 10, 20 with all frames. */
    static std::string field(const std::string& attributes = "style='normal'",
                             const std::string& children = "")
    {
        return "<ok " + attributes + ">" + frameOf(up, "imageup") + frameOf(down, "imagedown") +
               frameOf(dim, "imagedim") + "<position x='10' y='20' width='200' height='44'/>" +
               children + "</ok>";
    }

    /** An edit on the panel, shown; an empty text for a null element. */
    template <class T>
    T* make(const std::string& xml, const std::string& type = "ZELImageEdit")
    {
        auto* const edit = new T(&panel(), "ok", type, xml.empty() ? nullptr : element(xml));
        edit->showWindow();
        EventLoop::deliver();
        return edit;
    }

    static Resource::Font* style(const std::string& name)
    {
        return Resource::ZELResourceMgr::getInstance()->getFont(name);
    }

    static QPixmap* picture(const std::string& name)
    {
        return Resource::ZELResourceMgr::getInstance()->getImage(name);
    }

    /** The state whose pieces are now shown; -1 for a mixture or for none. */
    template <class T>
    static int shownState(T* edit)
    {
        for (const State state : {up, down, dim}) {
            if (edit->m_pCurStart == picture(piece(state, "start")) &&
                edit->m_pCurMid == picture(piece(state, "mid")) &&
                edit->m_pCurEnd == picture(piece(state, "end")))
                return state;
        }
        return -1;
    }

    /** What a frame alone looks like. */
    static QImage framed(State state = up, const QSize& size = place.size())
    {
        QImage image = Pixels::canvas(size);
        QPainter painter(&image);
        painter.drawPixmap(QRect(10, 0, size.width() - 24, 36), *picture(piece(state, "mid")));
        painter.drawPixmap(0, 0, *picture(piece(state, "start")));
        painter.drawPixmap(size.width() - 14, 0, *picture(piece(state, "end")));
        return image;
    }

    /** A frame with a text in it. */
    static QImage framedText(const QString& text, const QRect& rectangle, int align,
                             const QColor& pen = Qt::black, State state = up,
                             const std::string& styleName = "normal")
    {
        QImage image = framed(state);
        drawText(image, text, rectangle, align, pen, styleName);
        return image;
    }

    static void drawText(QImage& image, const QString& text, const QRect& rectangle, int align,
                         const QColor& pen = Qt::black, const std::string& styleName = "normal")
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(*style(styleName)->m_pFont);
        painter.setPen(pen);
        painter.drawText(rectangle, align, text);
    }

    /** How often a visible widget paints itself anew for what is done. */
    static int paints(QWidget* widget, const std::function<void()>& act)
    {
        PaintCounter counter(widget);
        counter.reset();
        act();
        EventLoop::deliver();
        return counter.count();
    }

    /** The placeholder's shade of the black style "normal". */
    static QColor lightened() { return {90, 90, 90}; }
};

} // namespace PANFx::Testing
