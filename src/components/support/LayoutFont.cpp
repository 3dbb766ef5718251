#include "components/support/LayoutFont.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "resource/ZELResourceMgr.h"

namespace PANFx::Components {

Resource::Font* fontNamedBy(TAMFx::Common::Xml::Node* pNode, const char* pszAttribute)
{
    TAMFx::Common::Xml::Attribute* name = pNode->getAttributeByName(pszAttribute);
    return name ? Resource::ZELResourceMgr::getInstance()->getFont(name->getValue()) : nullptr;
}

} // namespace PANFx::Components
