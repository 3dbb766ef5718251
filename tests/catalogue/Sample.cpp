#include "catalogue/Sample.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "common/tamfx/XmlDocument.h"
#include "common/tamfx/XmlException.h"

#include <gtest/gtest.h>
#include <sstream>

namespace PANFx::Testing {

using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::XmlDocument;
using TAMFx::Common::Xml::XmlException;

namespace {

std::string attribute(Node* node, const char* name, const char* missing)
{
    auto* const found = node->getAttributeByName(name);
    return found ? found->getValue() : missing;
}

std::vector<SampleLine> readLines(Node* sample, const char* section)
{
    std::vector<SampleLine> lines;
    Node* const node = sample->getNodeByName(section);
    for (int i = 0; node && i < node->getChildNodeSize(); ++i) {
        Node* const line = node->getChildNode(i);
        const std::string times = attribute(line, "times", "1");
        lines.push_back({attribute(line, "class", ""), line->getValue(),
                         times == "some" ? SampleLine::some : std::stoi(times)});
    }
    return lines;
}

bool load(const std::string& path, XmlDocument& document)
{
    try {
        if (document.LoadXMLFile(path.c_str()))
            return true;
        ADD_FAILURE() << "a component needs a sample layout: " << path;
    } catch (XmlException* fault) {
        ADD_FAILURE() << fault->GetMessage();
    }
    return false;
}

} // namespace

bool readSample(const std::string& keyword, XmlDocument& document, Sample& sample)
{
    const std::string path = QTPANFX_TESTS_DIR "/catalogue/layouts/" + keyword + ".xml";
    if (!load(path, document))
        return false;
    Node* const root = document.getChildNode(0);
    Node* const layout = root ? root->getNodeByName("layout") : nullptr;
    if (!layout || layout->getChildNodeSize() != 1 || !root->getAttributeByName("tap")) {
        ADD_FAILURE() << path << ": a sample has a \"tap\" and a \"layout\" with one element in it";
        return false;
    }
    sample.paints = attribute(root, "paints", "yes") == "yes";
    std::istringstream numbers(attribute(root, "tap", ""));
    for (int number = 0; numbers >> number;)
        sample.tap.push_back(number);
    sample.x = std::stoi(attribute(root, "x", "-1"));
    sample.y = std::stoi(attribute(root, "y", "-1"));
    sample.full = readLines(root, "full");
    sample.empty = readLines(root, "empty");
    sample.null = readLines(root, "null");
    sample.layout = layout->getChildNode(0);
    return true;
}

} // namespace PANFx::Testing
