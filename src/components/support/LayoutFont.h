#pragma once

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Resource {
class Font;
}

namespace PANFx::Components {

/**
 * The style that an attribute of an element names, which stays the resource manager's. Null when
 * the attribute is absent or the style is unknown.
 */
Resource::Font* fontNamedBy(TAMFx::Common::Xml::Node* pNode, const char* pszAttribute);

} // namespace PANFx::Components
