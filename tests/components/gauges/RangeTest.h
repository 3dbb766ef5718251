#pragma once

#include "components/buttons/ZELImageButton.h"
#include "components/gauges/ZELEditRange.h"
#include "components/gauges/ZELProgressRange.h"
#include "components/lists/ListTest.h"

#include <ostream>
#include <string>
#include <vector>

namespace PANFx::Testing {

/** A range whose inside is open, as it is to an application's derived class. */
template <class Base>
class OpenRange : public OpenedPart<Base>
{
public:
    using OpenedPart<Base>::OpenedPart;

    using Base::m_bWrap;
    using Base::m_nMax;
    using Base::m_nStep;
    using Base::m_pDownBtn;
    using Base::m_pExtra;
    using Base::m_pUpBtn;

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

    /** Whether the buttons play the touch sound. */
    std::string sounds() const
    {
        return std::string(m_pUpBtn->*ButtonDoor::sound ? "on" : "off") + " " +
               (m_pDownBtn->*ButtonDoor::sound ? "on" : "off");
    }

    static bool hasLongPress(const Components::ZELImageButton* button)
    {
        return button->*ButtonDoor::longPress;
    }
    static std::string upImage(const Components::ZELImageButton* button)
    {
        return button->*ButtonDoor::up;
    }

private:
    // the one way to the fields of a part that is not of a test's own class
    struct ButtonDoor : Components::ZELImageButton
    {
        static constexpr auto dim = &ButtonDoor::m_bDimMode;
        static constexpr auto sound = &ButtonDoor::m_bSoundMode;
        static constexpr auto longPress = &ButtonDoor::m_bLongPress;
        static constexpr auto up = &ButtonDoor::m_strUpImage;
    };

    static bool isDim(const Components::ZELImageButton* button)
    {
        return button->*ButtonDoor::dim && !button->isEnabled();
    }
};

/** One row of a table of steps. */
struct StepRow
{
    bool wrap;
    int from; ///< the step before
    int to;   ///< what is asked for
    int step; ///< what it becomes
    std::string dims;

    friend std::ostream& operator<<(std::ostream& out, const StepRow& row)
    {
        return out << (row.wrap ? "wrapping, " : "") << "from " << row.from << " to " << row.to;
    }
};

/** One row of a table of enabling. */
struct EnableRow
{
    bool wrap;
    int from; ///< the step before
    bool enable;
    int step;
    std::string dims;

    friend std::ostream& operator<<(std::ostream& out, const EnableRow& row)
    {
        return out << (row.wrap ? "wrapping, " : "") << (row.enable ? "on" : "off") << " at "
                   << row.from;
    }
};

/** The fixture of ranges: the pictures and the sound of the buttons, and pieces of a frame. */
class RangeTest : public ListTest
{
protected:
    using Texts = std::vector<std::string>;

    RangeTest()
    {
        writePicture("start.png", 8, 40, Qt::darkRed);
        writePicture("mid.png", 4, 40, Qt::darkGreen);
        writePicture("end.png", 8, 40, Qt::darkBlue);
        writePicture("thumb.png", 10, 8, Qt::magenta);
    }

    static std::string pushButton(const std::string& name, int x)
    {
        return "<" + name + " x='" + std::to_string(x) +
               "' y='0' width='40' height='30' up='up.png' down='down.png' dim='dim.png'/>";
    }

    /** Goes through a table of steps with one range. */
    template <class Range>
    static void expectSteps(Range* range, const std::vector<StepRow>& rows)
    {
        for (const StepRow& row : rows) {
            SCOPED_TRACE(row);
            range->m_bWrap = false;
            range->setStep(row.from);
            range->m_bWrap = row.wrap;
            range->setStep(row.to);
            EXPECT_EQ(range->m_nStep, row.step);
            EXPECT_EQ(range->getStep(), row.step);
            EXPECT_EQ(range->dims(), row.dims);
        }
    }

    /** Goes through a table of enabling with one range. */
    template <class Range>
    static void expectEnabling(Range* range, const std::vector<EnableRow>& rows)
    {
        for (const EnableRow& row : rows) {
            SCOPED_TRACE(row);
            range->m_bWrap = false;
            range->setStep(row.from);
            range->setEnable(!row.enable);
            range->m_nStep = row.from;
            range->m_bWrap = row.wrap;
            range->setEnable(row.enable);
            EXPECT_EQ(range->m_nStep, row.step);
            EXPECT_EQ(range->dims(), row.dims);
        }
    }
};

} // namespace PANFx::Testing
