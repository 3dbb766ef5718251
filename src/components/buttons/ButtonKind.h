#pragma once

namespace PANFx::Components {

class ZELComponent;
class ZELImageButton;

/** The component as the image button that its type string says it is; null for any other. */
ZELImageButton* asImageButton(ZELComponent* pComponent);

} // namespace PANFx::Components
