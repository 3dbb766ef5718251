#include "resource/ParseHelper.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"

#include <Qt>

#include <cstring>

using PANFx::Common::toInt;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

void readNumber(Node* node, const char* name, int& value)
{
    if (Attribute* attribute = node->getAttributeByName(name))
        value = toInt(attribute->getValue());
}

void readText(Node* node, const char* name, std::string& value)
{
    if (Attribute* attribute = node->getAttributeByName(name))
        value = attribute->getValue();
}

} // namespace

bool ParseHelper::getPosition(Node* pNode, int& x, int& y, int& width, int& height)
{
    if (!pNode)
        return false;
    readNumber(pNode, "x", x);
    readNumber(pNode, "y", y);
    readNumber(pNode, "width", width);
    readNumber(pNode, "height", height);
    return true;
}

int ParseHelper::getAlign(Attribute* pAttr, int nDefault)
{
    if (!pAttr)
        return nDefault;
    // existing layouts have the forms with the slash too
    static constexpr struct
    {
        const char* word;
        int flags;
    } words[] = {
        {"center", Qt::AlignHCenter | Qt::AlignVCenter},
        {"center/", Qt::AlignHCenter | Qt::AlignVCenter},
        {"right", Qt::AlignRight | Qt::AlignVCenter},
        {"right/", Qt::AlignRight | Qt::AlignVCenter},
        {"left", Qt::AlignLeft | Qt::AlignVCenter},
        {"left/", Qt::AlignLeft | Qt::AlignVCenter},
    };
    for (const auto& entry : words) {
        if (std::strcmp(pAttr->getValue(), entry.word) == 0)
            return entry.flags;
    }
    return nDefault;
}

bool ParseHelper::getButtonImage(Node* pNode, std::string& strDown, std::string& strUp,
                                 std::string& strDim)
{
    strDown.clear();
    strUp.clear();
    strDim.clear();
    if (!pNode)
        return false;
    readText(pNode, "up", strUp);
    readText(pNode, "down", strDown);
    readText(pNode, "dim", strDim);
    return true;
}

bool ParseHelper::getEditorImage(Node* pNode, std::string& strStart, std::string& strMid,
                                 std::string& strEnd)
{
    strStart.clear();
    strMid.clear();
    strEnd.clear();
    if (!pNode)
        return false;
    Attribute* start = pNode->getAttributeByName("start");
    Attribute* mid = pNode->getAttributeByName("mid");
    Attribute* end = pNode->getAttributeByName("end");
    if (!start || !mid || !end)
        return false;
    strStart = start->getValue();
    strMid = mid->getValue();
    strEnd = end->getValue();
    return true;
}
