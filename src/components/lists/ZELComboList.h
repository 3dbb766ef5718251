#pragma once

#include "common/tamfx/ArrayList.h"
#include "components/ZELComponent.h"

#include <QPointer>
#include <QWidget>

#include <deque>
#include <string>

class ZELEvent;
class ZELListEvent;

namespace PANFx::Components {

class ZELImageButton;
class ZELImageEdit;
class ZELLineEdit;
class ZELListScroll;

/**
 * The drop-down of a field: offers the texts that were entered before, the newest next to the
 * field. A touch on a row copies its text into the edit that is tied to the list and closes the
 * list. Its rows stand in the layout and are the greatest number of entries.
 *
 * Entries have two kinds of numbers: an index counts from the oldest, a rank from the newest,
 * both from 0.
 *
 * Layout: attributes "direction" ("UP" opens upward), "itemIndex" (the column of the button that
 * shows the text, 0), "sort" ("YES" moves a repeated or chosen text to the newest place);
 * children "position", "image" with the row pictures "mid", "end" and "press", which must all be
 * there for the texts to show, and the groups "listitem" and "listscroll".
 *
 * Posts to its parent what its rows and its scroll report, with its own id and sender: a
 * ZELListEvent with the rank as the row, a ZELRangeEvent with the page.
 */
class QTPANFX_EXPORT ZELComboList : public ZELComponent, public QWidget
{
public:
    /**
     * Reads the element, builds its rows and scroll, and hides itself and all of them; the list is
     * empty. A null element is told twice and leaves a list without rows.
     */
    ZELComboList(QWidget* pParent, std::string strID, std::string strType,
                 TAMFx::Common::Xml::Node* pLayout);
    ~ZELComboList() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** The number last given to setTotalPage(), taken as it was; 1 at first. */
    int getTotalPage();

    /** The page last given to setNowPage() or reached by a touch; 1 at first. */
    int getNowPage();

    /**
     * Takes effect at the next draw(): with any total but 1 the list keeps its full height and
     * shows its scroll.
     */
    void setTotalPage(int nTotal);

    /** Kept also where the scroll refuses the page. */
    void setNowPage(int nPage);

    /** The edit that gets the chosen text, not owned; null unties it. */
    void setEdit(ZELImageEdit* pEdit);

    /** Null when none is tied, or when it is gone. */
    ZELImageEdit* getEdit();

    /** The line edit that gets it when there is no edit, not owned; null is ignored. */
    void setLineEdit(ZELLineEdit* pLineEdit);

    /** Null when none is tied, or when it is gone. */
    ZELLineEdit* getLineEdit();

    /** Number of entries, whether they have a row or not. */
    int getItemCount();

    /** @throw std::out_of_range when there is no such entry */
    std::string getItem(int nIndex);

    /** Index of the first entry with that text; -1 when there is none. */
    int findItem(std::string strText);

    /**
     * Adds the newest entry, dropping the oldest where all rows are taken. An empty text is
     * ignored, and so is one that is there already, unless the list sorts. Without rows the list
     * keeps the newest alone and writes an error line.
     */
    void addItem(std::string strText);

    /** Removes by rank; a rank that there isn't changes nothing. */
    void removeItem(int nRank);

    /** Removes all entries and draws the list. */
    void clearItem();

    /** Takes up the rows anew. */
    void addListItem();

    /** Fits the list to its entries and writes them into the rows. */
    void draw();

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    std::deque<std::string> m_dequeItem; ///< the newest at the back
    int m_nX = 0;                        ///< place of all rows together in the parent, in pixels
    int m_nY = 0;
    int m_nWidth = 1;
    int m_nHeight = 1;           ///< of all rows together
    int m_nListCount = 0;        ///< number of rows
    std::string m_strMidImage;   ///< file name
    std::string m_strEndImage;   ///< file name, of the row farthest from the field
    std::string m_strPressImage; ///< file name
    bool m_bUp = false;          ///< opens upward
    bool m_bSort = false;        ///< a repeated or chosen text becomes the newest
    int m_nItemIndex = 0;        ///< column of the button that shows the text, from 0
    bool m_bImage = false;       ///< whether all three pictures are given
    int m_nTotalPage = 1;
    int m_nNowPage = 1;                 ///< counted from 1
    ZELImageEdit* m_pEdit = nullptr;    ///< not owned; dangles once the edit is gone: ask getEdit()
    ZELLineEdit* m_pLineEdit = nullptr; ///< not owned; as m_pEdit: ask getLineEdit()
    ZELListScroll* m_pListScroll = nullptr;         ///< a Qt child; null without a scroll
    TAMFx::Data::Collection::ArrayList m_arrItemId; ///< ids of the rows
    Common::SysLogger m_logger{"QTPANFx", "ZELComboList"};

private:
    void readImages(TAMFx::Common::Xml::Node* pImage);
    ZELListScroll* scroll();
    void fit();
    void drawRow(int nRow);
    void writeEntry(ZELImageButton& button, int nRow);
    void erase(const std::string& strText);
    void handleRow(const ZELListEvent& event);
    void choose(const QObject* pSender);
    void hand(const std::string& strText);

    QPointer<QWidget> m_editWidget;
    QPointer<QWidget> m_lineEditWidget;
};

} // namespace PANFx::Components
