#include "components/containers/ZELBubbleDialog.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "common/tamfx/String.h"
#include "components/SubComponents.h"

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

void addNumber(Node& node, const char* name, int value)
{
    String text;
    text.Format("%d", value);
    node.addAttribute(new Attribute(name, text.c_str()));
}

// the element takes the child over
Node* addElement(Node& node, const char* name)
{
    auto* child = new Node(name);
    node.addChild(child);
    return child;
}

} // namespace

ZELBubbleDialog::ZELBubbleDialog(QWidget* pParent, std::string strID, std::string strType,
                                 Node* pLayout)
    : ZELImageBox(pParent, std::move(strID), std::move(strType), pLayout)
{
    ZELImageBox::setLayout(pLayout);
}

ZELBubbleDialog::~ZELBubbleDialog() = default;

void ZELBubbleDialog::addLable(std::string strText, std::string strStyle, int x, int y, int width,
                               int height)
{
    Node components("components");
    Node* label = addElement(*addElement(components, "label"), strText.c_str());
    Node* position = addElement(*label, "position");
    addNumber(*position, "x", x);
    addNumber(*position, "y", y);
    addNumber(*position, "width", width);
    addNumber(*position, "height", height);
    label->addAttribute(new Attribute("title", strText.c_str()));
    label->addAttribute(new Attribute("style", strStyle.c_str()));
    createSubComponent(&components);
    showSubComponent();
}

// Each step takes one entry off the front, so that the walk from the back ends with none.
void ZELBubbleDialog::deleteLabel()
{
    const int count = getComponentCount();
    m_logger.WriteDebug("deletelabel count %d\n", count);
    hideSubComponent();
    for (int i = count - 1; i >= 0; --i) {
        const ZELComponent* component = subComponentAt(*this, i);
        if (!component)
            continue;
        m_logger.WriteDebug("deletelabel count %s\n", component->m_strType.c_str());
        if (component->m_strType == "ZELLabel")
            deleteSubComponent(component->m_strID);
    }
}

} // namespace PANFx::Components
