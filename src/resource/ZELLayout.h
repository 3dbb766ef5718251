#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/tamfx/XmlDocument.h"

#include <string>

namespace PANFx::Resource {

/** A loaded layout file. Its nodes live as long as the object, or until the next load. */
class QTPANFX_EXPORT ZELLayout
{
public:
    /** Without a file, until loadLayout(). */
    ZELLayout();
    virtual ~ZELLayout();

    /**
     * Loads the file, in place of what was loaded before.
     * @param strPath the instrument's path of the file
     * @return false, with an error line, when the file can't be read or is not well-formed; an
     *         exception of the foundation that is no XmlException passes to the caller
     */
    bool loadLayout(std::string strPath);

    /** A section below the root element, still the layout's; null when absent. */
    TAMFx::Common::Xml::Node* getFirstNodebyName(std::string strName);

    /** Text of "background" inside "Base"; "" when either is absent. */
    std::string getBackgroundImageName();

    Common::SysLogger m_logger{"QTPANFx", "ZELLayout"};
    TAMFx::Common::Xml::XmlDocument m_xmlDoc; ///< the file; empty after a failed load
};

} // namespace PANFx::Resource
