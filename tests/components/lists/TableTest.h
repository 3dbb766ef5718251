#pragma once

#include "components/lists/ListTest.h"
#include "components/lists/ZELList.h"
#include "components/lists/ZELListHeader.h"
#include "components/lists/ZELListItem.h"
#include "components/lists/ZELListScroll.h"

#include <string>

namespace PANFx::Testing {

/** A list whose inside is open. */
template <class Base>
class OpenedTable : public OpenedPart<Base>
{
public:
    using OpenedPart<Base>::OpenedPart;

    using Base::m_arrItemId;
    using Base::m_nBGHeight;
    using Base::m_nBGWidth;
    using Base::m_nBGX;
    using Base::m_nBGY;
    using Base::m_pBGPixmap;
    using Base::m_pListHeader;
    using Base::m_pListScroll;

    Components::ZELListItem* item(int row)
    {
        return static_cast<Components::ZELListItem*>(this->getListItem(row));
    }

    QWidget* cell(int row, int column) { return this->getItemComponent(row, column)->getQWidget(); }

    QWidget* headCell(const std::string& id) { return this->getHeaderComponent(id)->getQWidget(); }
};

/**
 * The fixture of ZELList and ZELUnitList: a list "lst" with a header "head" (check, radio, sort,
 * push), rows "row0" to "row3" of the columns check, radio, push, icon, text, and a scroll "scr".
 */
class TableTest : public ListTest
{
protected:
    enum Column { Check, Radio, Push, Icon, Text };
    enum HeadColumn { HeadCheck, HeadRadio, HeadSort, HeadPush };

    static std::string header(const std::string& id = "head")
    {
        return row(id, 0,
                   group("checkbutton", cell("headcheck", 0)) +
                       group("radiobutton", cell("headradio", 50)) +
                       group("headerbutton", cell("headsort", 100)) +
                       group("button", cell("headpush", 150)));
    }

    static std::string tableRow(int number)
    {
        return row(
            "row" + std::to_string(number), 30 + 30 * number,
            group("checkbutton", cell("check", 0)) + group("radiobutton", cell("radio", 50)) +
                group("button", cell("push", 100)) + group("iconcheckbutton", cell("icon", 150)) +
                group("label", "<text title='t' style='normal'>" + at(200, 0, 40, 30) + "</text>"));
    }

    static std::string rows(int count = 4)
    {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += tableRow(i);
        return group("listitem", all);
    }

    static std::string table(const std::string& parts, const std::string& image = "<image/>")
    {
        return "<lst>" + at(5, 6, 400, 200) + image + parts + "</lst>";
    }

    static std::string fullTable()
    {
        return table(group("listscroll", scrollElement) + group("listheader", header()) + rows());
    }

    /** The whole list, on the panel and shown. */
    template <class T>
    T* full(const std::string& type)
    {
        expectScrollLines();
        return make<T>(fullTable(), type);
    }
};

} // namespace PANFx::Testing
