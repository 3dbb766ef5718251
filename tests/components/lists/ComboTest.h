#pragma once

#include "components/buttons/ZELImageButton.h"
#include "components/lists/ListTest.h"
#include "components/lists/ZELComboList.h"
#include "components/lists/ZELListItem.h"
#include "components/lists/ZELListScroll.h"

#include <string>

namespace PANFx::Testing {

/** A drop-down whose inside is open. */
class Combo : public OpenedPart<Components::ZELComboList>
{
public:
    using OpenedPart::OpenedPart;

    using ZELComboList::m_arrItemId;
    using ZELComboList::m_bImage;
    using ZELComboList::m_bSort;
    using ZELComboList::m_bUp;
    using ZELComboList::m_dequeItem;
    using ZELComboList::m_nHeight;
    using ZELComboList::m_nItemIndex;
    using ZELComboList::m_nListCount;
    using ZELComboList::m_nNowPage;
    using ZELComboList::m_nTotalPage;
    using ZELComboList::m_nWidth;
    using ZELComboList::m_nX;
    using ZELComboList::m_nY;
    using ZELComboList::m_pListScroll;
    using ZELComboList::m_strEndImage;
    using ZELComboList::m_strMidImage;
    using ZELComboList::m_strPressImage;

    void add(const std::vector<std::string>& texts)
    {
        for (const std::string& text : texts)
            addItem(text);
    }

    /** The entries, oldest first: "a b c". */
    std::string entries()
    {
        std::string all;
        for (int i = 0; i < getItemCount(); ++i)
            all += (i > 0 ? " " : "") + getItem(i);
        return all;
    }

    Components::ZELComponent* row(int number)
    {
        return getSubComponent(std::string(m_arrItemId.AtString(number)));
    }

    /** The button that carries the text of a row. */
    Components::ZELImageButton* button(int number)
    {
        return static_cast<Components::ZELImageButton*>(row(number)->getSubComponent(m_nItemIndex));
    }

    /** What the rows show, from the top: a title, "-" for a hidden row, "~" for a dead blank. */
    std::string rows()
    {
        std::string all;
        for (int i = 0; i < m_arrItemId.Count(); ++i) {
            const QWidget* const widget = row(i)->getQWidget();
            const std::string title = button(i)->getTitle();
            all += i > 0 ? " " : "";
            if (widget->isHidden())
                all += "-";
            else if (!widget->isEnabled())
                all += title.empty() ? "~" : "~" + title;
            else
                all += title;
        }
        return all;
    }

    /** The pictures of the rows, from the top: "mid.png end.png". */
    std::string pictures(int count)
    {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += (i > 0 ? " " : "") + button(i)->*Door::up;
        return all;
    }

    struct Door : Components::ZELImageButton
    {
        static constexpr auto up = &Door::m_strUpImage;
        static constexpr auto down = &Door::m_strDownImage;
        static constexpr auto dim = &Door::m_strDimImage;
    };
};

/**
 * The fixture of drop-downs: "cmb", 200 by 120 at 20, 100, of rows "row0" ... of 30 pixels with
 * the buttons "text" (column 0) and "more" (column 1).
 */
class ComboTest : public ListTest
{
protected:
    ComboTest()
    {
        writePicture("mid.png", 10, 10, Qt::darkGreen);
        writePicture("end.png", 10, 10, Qt::darkBlue);
        writePicture("press.png", 10, 10, Qt::darkRed);
    }

    static const std::string images;

    static std::string comboRows(int count)
    {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += row("row" + std::to_string(i), 30 * i,
                       group("button", cell("text", 0) + cell("more", 50)));
        return group("listitem", all);
    }

    static std::string comboOf(const std::string& attributes, const std::string& parts,
                               const std::string& image = images)
    {
        return "<cmb " + attributes + ">" + at(20, 100, 200, 120) + image + parts + "</cmb>";
    }

    /** One of four rows, shown. */
    Combo* combo(const std::string& attributes = "", const std::string& image = images)
    {
        return make<Combo>(comboOf(attributes, comboRows(4), image), "ZELComboList");
    }

    /** One of four rows with a scroll of 60 pixels, shown. */
    Combo* scrolled(const std::string& attributes = "")
    {
        expectScrollLines();
        return make<Combo>(comboOf(attributes, group("listscroll", scrollElement) + comboRows(4)),
                           "ZELComboList");
    }
};

inline const std::string ComboTest::images =
    "<image mid='mid.png' end='end.png' press='press.png'/>";

} // namespace PANFx::Testing
