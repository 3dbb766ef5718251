#pragma once

#include "components/containers/ZELTab.h"
#include "components/containers/ZELTabButton.h"
#include "components/containers/ZELTabPage.h"
#include "components/lists/ListTest.h"

#include <string>
#include <vector>

namespace PANFx::Testing {

/** A tab whose inside is open, as it is to an application's derived class. */
class Tab : public OpenedPart<Components::ZELTab>
{
public:
    using OpenedPart::OpenedPart;

    using ZELTab::m_arrButtonId;
    using ZELTab::m_arrPageId;
    using ZELTab::m_nBGHeight;
    using ZELTab::m_nBGWidth;
    using ZELTab::m_nBGX;
    using ZELTab::m_nBGY;
    using ZELTab::m_nCurPage;
    using ZELTab::m_pBGPixmap;

    /** "b0 p0, b1 p1": the pairs that were taken up. */
    std::string pairs() const
    {
        std::string told;
        for (int i = 0; i < m_arrButtonId.Count(); ++i)
            told += std::string(i == 0 ? "" : ", ") + m_arrButtonId.AtString(i) + " " +
                    m_arrPageId.AtString(i);
        return told;
    }

    /** The ids of the buttons that are checked and of the pages that are shown, in their order. */
    std::string shown()
    {
        std::string told;
        for (int i = 0; i < getComponentCount(); ++i) {
            Components::ZELComponent* const part = getSubComponent(i);
            auto* const button = dynamic_cast<Components::ZELTabButton*>(part);
            const bool on = button ? button->m_bChecked : part && !part->getQWidget()->isHidden();
            if (on)
                told += (told.empty() ? "" : " ") + part->m_strID;
        }
        return told;
    }
};

/**
 * The fixture of tabs: "tab" of 200 by 150 at 10, 10. A button of 40 by 30 stands at the top for
 * each page, 50 pixels from one to the next; the pages lie below, with 30 pixels between.
 */
class TabTest : public ListTest
{
protected:
    using Texts = std::vector<std::string>;

    static std::string button(const std::string& id, int x = 0)
    {
        return group("tabbutton", cell(id, x));
    }

    static std::string page(const std::string& id, const std::string& content = "")
    {
        return group("tabpage", "<" + id + ">" + at(0, 60, 200, 90) + content + "</" + id + ">");
    }

    /** Pairs b0 p0, b1 p1 and so on. */
    static std::string pairs(int count, const std::string& content = "")
    {
        std::string xml;
        for (int i = 0; i < count; ++i) {
            const std::string number = std::to_string(i);
            xml += button("b" + number, 50 * i) + page("p" + number, content);
        }
        return xml;
    }

    static std::string tabOf(const std::string& children, const std::string& id = "tab")
    {
        return "<" + id + ">" + at(10, 10, 200, 150) + children + "</" + id + ">";
    }

    Tab* makeTab(const std::string& children) { return make<Tab>(tabOf(children), "ZELTab"); }

    /** A part of it as its own class. */
    template <class T>
    static T* part(Components::ZELComponent* owner, const std::string& id)
    {
        T* const found = dynamic_cast<T*>(owner->getSubComponent(id));
        EXPECT_NE(found, nullptr) << id;
        return found;
    }

    static Components::ZELTabButton* buttonOf(Tab* tab, const std::string& id)
    {
        return part<Components::ZELTabButton>(tab, id);
    }
};

} // namespace PANFx::Testing
