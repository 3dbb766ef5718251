#pragma once

#include "common/Export.h"
#include "common/tamfx/Object.h"

class QColor;
class QFont;

namespace PANFx::Resource {

/** A style: a font and a colour, read directly by the components that paint with it. */
class QTPANFX_EXPORT Font : public TAMFx::Data::Object
{
public:
    /** Qt's default font in opaque black. */
    Font();
    ~Font() override;

    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    /**
     * Sets red, green and blue from the first six characters, hexadecimal digits of either case;
     * what follows is ignored. A shorter text, or null, leaves the colour. There is no leading
     * number sign: any character counts as a digit.
     */
    void setColor(const char* pszColor);

    QFont* m_pFont;   ///< owned
    QColor* m_pColor; ///< owned
};

} // namespace PANFx::Resource
