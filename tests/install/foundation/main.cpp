// A program without a screen, on the foundation library alone.

#include <QTPANFx/common/tamfx/HashTable.h>
#include <QTPANFx/common/tamfx/Node.h>
#include <QTPANFx/common/tamfx/String.h>
#include <QTPANFx/common/tamfx/XmlDocument.h>

#include <cstdio>

int main(int argc, char** argv)
{
    TAMFx::Common::Xml::XmlDocument document;
    if (argc < 2 || !document.LoadXMLFile(argv[1]))
        return 1;
    TAMFx::Data::Collection::HashTable names;
    TAMFx::Common::Xml::Node* const components = document.getNodeByName("Components");
    for (int i = 0; components && i < components->getChildNodeSize(); ++i)
        names.AddObj(components->getChildNode(i)->getName(), "seen");
    std::printf("label %s\n", names.getStringValue("label"));
    return names.getCount() == 1 ? 0 : 1;
}
