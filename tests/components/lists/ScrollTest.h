#pragma once

#include "components/buttons/ZELImageButton.h"
#include "components/lists/ListTest.h"
#include "components/lists/ZELListScroll.h"
#include "components/text/ZELLabel.h"

#include <string>

namespace PANFx::Testing {

/** A scroll whose inside is open. */
class Scroll : public OpenedPart<Components::ZELListScroll>
{
public:
    using OpenedPart::OpenedPart;

    using ZELListScroll::m_nType;
    using ZELListScroll::m_pDownBtn;
    using ZELListScroll::m_pPageLabel;
    using ZELListScroll::m_pUpBtn;
    using ZELListScroll::m_strPageNumbering;

    /** Which buttons are dim: "up", "down", "up down" or "". */
    std::string dims() const
    {
        std::string found;
        if (m_pUpBtn && isDim(m_pUpBtn))
            found += "up";
        if (m_pDownBtn && isDim(m_pDownBtn))
            found += found.empty() ? "down" : " down";
        return found;
    }

    QWidget* label() const { return m_pPageLabel; }

    /** The text that the label gets with the next paint. */
    std::string shown()
    {
        Pixels::grab(this);
        return titleOf(m_pPageLabel);
    }

    int paints = 0;

    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        ZELListScroll::paintEvent(event);
    }

private:
    // the one way to the fields of a part that is not of a test's own class
    struct ButtonDoor : Components::ZELImageButton
    {
        static constexpr auto dim = &ButtonDoor::m_bDimMode;
    };
    struct LabelDoor : Components::ZELLabel
    {
        static constexpr auto title = &LabelDoor::m_strTitle;
    };

    static bool isDim(const Components::ZELImageButton* button)
    {
        return button->*ButtonDoor::dim && !button->isEnabled();
    }
    static std::string titleOf(const Components::ZELLabel* label)
    {
        return label->*LabelDoor::title;
    }
};

/** The fixture of scrolls: "scr" of 60 by 120 at 310, 0. */
class ScrollTest : public ListTest
{
protected:
    /** Its element with a position, "" for the usual one, and its parts. */
    static std::string scrollOf(const std::string& position, const std::string& parts)
    {
        return "<scr>" + (position.empty() ? at(310, 0, 60, 120) : position) + parts + "</scr>";
    }

    /** A scroll on the panel, shown, with the lines of its three parts announced. */
    Scroll* scroll(const std::string& position = "",
                   const std::string& parts = label + pageUp + pageDown)
    {
        expectScrollLines();
        return make<Scroll>(scrollOf(position, parts), "ZELListScroll");
    }
};

} // namespace PANFx::Testing
