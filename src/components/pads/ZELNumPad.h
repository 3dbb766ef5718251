#pragma once

#include "components/ZELComponent.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <string>

class QPixmap;
class ZELEvent;

namespace PANFx::Components {

class ZELImageButton;
class ZELImageEdit;

/**
 * A pad of digit keys for the image editors, attached to one edit at most. It shows embedded in
 * a page, or as a popup with a background picture and a close key.
 *
 * Layout: children "position", "backimage" ("file", "x", "y", "width", "height" in pixels, the
 * popup's background) and "Components" with the keys, image buttons that are told by their ids:
 * "num0" to "num9", "num00" (types one 0), "backspace", "dot", "comma", "ampm", "empty" (types
 * its title) and "close". "num0", "num00" and "close" must be there.
 *
 * Posts to its parent a ZELRangeEvent of EVENT_MOUSE_UP (1552) for each key, with the digit, -1
 * for backspace and 100 for the others, with or without an edit; for "close" instead a ZELEvent of
 * EVENT_NUMPAD_CLOSE (1701).
 */
class QTPANFX_EXPORT ZELNumPad : public ZELComponent, public QWidget
{
public:
    /**
     * Reads the element and builds its keys; the pad shows key set 0, embedded, with no edit
     * attached. A null element is told twice and leaves a pad without keys.
     */
    ZELNumPad(QWidget* pParent, std::string strID, std::string strType,
              TAMFx::Common::Xml::Node* pLayout);
    ~ZELNumPad() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Attaches the edit that the keys write to, not owned; null detaches it. */
    void setEdit(ZELImageEdit* pEdit);

    /** The edit attached; null when there is none, or when it is gone with its page. */
    ZELImageEdit* getEdit();

    /**
     * The set of keys: 0 digits with the double zero in place of the zero, 1 with the point, 2
     * with the comma, 3 for times, 4 with the user-defined key. Any other number hides the point,
     * the comma, the time key and the user-defined key.
     */
    void setType(int nType);

    /** The popup has a background and the close key. */
    void setPopupMode(bool bPopup);

    /** Disabled, the keys take no touch. */
    void setEnable(bool bEnable);

    /** Title of the key "empty", and the text that it types, UTF-8. */
    void setUserDefineButtonTitle(std::string strTitle);

    /** Only null may be passed, which empties the title; a text ends the program. */
    void setUserDefineButtonTitle(const char* pszTitle);

    /** Reports a key to the parent. */
    void sendEvent(int nValue);

    /**
     * What a click on a digit does; the last character of the event's id is the digit. Null does
     * nothing and is told.
     * @throw std::out_of_range when the id is empty
     */
    void onNumBtnPress(ZELEvent* pEvent);

    /** What a click on backspace and its first ticks do; the argument is not used. */
    void onBspacePress(ZELEvent* pEvent);

    /** What its later ticks do: empties the edit; the report is that of one step back. */
    void onBspacePressLong(ZELEvent* pEvent);

    /** What a click on another key does, by the event's id. Null does nothing and is told. */
    void onETCBtnPress(ZELEvent* pEvent);

    /** Hides the pad, takes the focus from the edit, and reports; the argument is not used. */
    void onClosePress(ZELEvent* pEvent);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

    static constexpr int digitKeys = 10; ///< "num0" to "num9"

    QPixmap* m_pBasePixmap = nullptr; ///< not owned; background of the popup
    ZELImageEdit* m_pEdit = nullptr;  ///< not owned; dangles once the edit is gone: ask getEdit()

    /// @{
    /** A key, which is a Qt child; null for one that the layout hasn't. */
    ZELImageButton* m_pNumBtn[digitKeys] = {};
    ZELImageButton* m_pNum00Btn = nullptr;
    ZELImageButton* m_pBackspaceBtn = nullptr;
    ZELImageButton* m_pDotBtn = nullptr;
    ZELImageButton* m_pCommaBtn = nullptr;
    ZELImageButton* m_pAmpmBtn = nullptr;
    ZELImageButton* m_pEmptyBtn = nullptr;
    ZELImageButton* m_pCloseBtn = nullptr;
    /// @}

    int m_nBaseX = 0; ///< place of the background in the pad, in pixels
    int m_nBaseY = 0;
    int m_nBaseWidth = -1; ///< below 1: as wide as the pad
    int m_nBaseHeight = -1;
    bool m_bPopupMode = false;
    int m_nType = 0;             ///< the key set, as setType() takes it
    float m_fOpacity = 1.0F;     ///< 1.0, or 0.6 while disabled; no pixel shows it
    std::string m_strUserDefine; ///< what the key "empty" types
    Common::SysLogger m_logger{"QTPANFx", "ZELNumPad"};

private:
    void readBackground(TAMFx::Common::Xml::Node* pLayout);
    void findKeys();
    ZELImageButton* findKey(const std::string& strID);
    void tellMissingKey(const ZELImageButton* pKey, const char* pszID);
    void handleKey(QEvent::Type type, ZELEvent* pEvent);
    bool isDigitKey(const QObject* pSender) const;
    bool isOtherKey(const QObject* pSender) const;

    QPointer<QWidget> m_editWidget; ///< null once the edit is gone
};

} // namespace PANFx::Components
