#pragma once

#include "components/buttons/ZELImageButton.h"

#include <string>

namespace PANFx::Components {

/**
 * A key of the text keyboard: an image button that carries what it types, for two languages, each
 * plain and shifted. Codes are UTF-16 values, indexes are places in the tables of the Hangul
 * composer; -1 stands for none. The page reads them when the key's click arrives.
 *
 * Layout: attributes "title" (the face, taken as it stands; without it the others are left out),
 * "code" and "code2" (hexadecimal, without prefix), "style", "pressstyle", "animation",
 * "longpress"; child "lang2" with "title", "title2", "code", "code2" and "index", "index2"
 * (decimal); children "image" and "position". The position places the key and nothing more: the
 * rest position of the push animation stays 0, 0 until setOrgPos() says otherwise.
 *
 * Posts what an image button posts.
 */
class QTPANFX_EXPORT ZELKeyButton : public ZELImageButton
{
public:
    /**
     * A child of @p pParent, not shown. A null element writes an error line and leaves a key
     * without code, face and pictures.
     */
    ZELKeyButton(QWidget* pParent, std::string strID, std::string strType,
                 TAMFx::Common::Xml::Node* pLayout);
    ~ZELKeyButton() override;

    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /**
     * What the key types.
     * @param nLang 1 the language of the element, 2 that of "lang2", which falls back to 1
     * @param bShift falls back to the plain code where there is no shifted one
     */
    int getKeyCode(short nLang, bool bShift);

    /** The index of the second language, shifted where there is a shifted code. */
    int getKeyIndex(bool bShift);

    /**
     * Shows the shifted or the plain face and repaints; a key without a shifted code keeps its
     * face. In language 2 the faces are the titles of "lang2", also where one is missing. In any
     * other they are the low byte of the code, and the layout's title never comes back.
     */
    void setShiftMode(short nLang, bool bShift);

    /**
     * Shows the plain face of a language, 1 or 2, and repaints; other numbers change nothing. In
     * language 1 that is the low byte of the code, 0xFF where there is none.
     */
    void changeKeyTitle(short nLang);

    /** The number at the start of a text; -1 when there is none. */
    int stringToInt10(std::string strNumber);

    /** The same for hexadecimal digits; ffffffff, and what has more than 32 bits, is -1 too. */
    int stringToInt16(std::string strNumber);

    /** The low 16 bits of the same. */
    unsigned short stringToQChar(std::string strNumber);

protected:
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

    int m_nCode = -1;             ///< plain; UTF-16, -1 for none
    int m_nCode2 = -1;            ///< shifted; UTF-16, -1 for none
    std::string m_strLang2Title;  ///< UTF-8
    int m_nLang2Code = -1;        ///< -1 also keeps the key out of the second language
    int m_nLang2Index = -1;       ///< place in the tables of the Hangul composer; -1 for none
    std::string m_strLang2Title2; ///< UTF-8, shifted
    int m_nLang2Code2 = -1;       ///< shifted; UTF-16, -1 for none
    int m_nLang2Index2 = -1;      ///< shifted; -1 for none
    Common::SysLogger m_logger{"QTPANFx", "ZELKeyButton"};

private:
    void reset();
    std::string readFace(TAMFx::Common::Xml::Node* pLayout);
    void readSecondLanguage(TAMFx::Common::Xml::Node* pLang2);
    bool isInSecondLanguage(short nLang) const;
};

} // namespace PANFx::Components
