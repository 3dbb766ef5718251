#include "support/LookUps.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/XmlDocument.h"
#include "support/InFrontOf.h"

#include <cstdlib>
#include <utility>

// the member functions as the compiler names them
#define GET_ATTRIBUTE "_ZNK5TAMFx6Common3Xml4Node18getAttributeByNameEPKc"
#define GET_NODE "_ZNK5TAMFx6Common3Xml4Node13getNodeByNameEPKc"
#define GET_DOCUMENT_NODE "_ZNK5TAMFx6Common3Xml11XmlDocument13getNodeByNameEPKc"
#define SET_COLUMN "_ZN5TAMFx6Common3Xml11XmlDocument9setColumnEPKcS4_i"

namespace PANFx::Testing {

namespace {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::XmlDocument;

LookUps* active = nullptr;

void note(const Node* element, const char* name, bool attribute)
{
    if (active && name)
        active->all.push_back({element, name, attribute});
}

} // namespace

LookUps::LookUps()
{
    if (std::exchange(active, this))
        std::abort();
}

LookUps::~LookUps()
{
    active = nullptr;
}

Attribute* lookUps_attribute(const Node* node, const char* name) IN_FRONT_OF(GET_ATTRIBUTE);
Node* lookUps_node(const Node* node, const char* name) IN_FRONT_OF(GET_NODE);
Node* lookUps_documentNode(const Node* document, const char* name) IN_FRONT_OF(GET_DOCUMENT_NODE);
void lookUps_setColumn(XmlDocument* document, const char* row, const char* key, int column)
    IN_FRONT_OF(SET_COLUMN);

Attribute* lookUps_attribute(const Node* node, const char* name)
{
    static const auto behind = next<Attribute* (*)(const Node*, const char*)>(GET_ATTRIBUTE);
    note(node, name, true);
    return behind(node, name);
}

Node* lookUps_node(const Node* node, const char* name)
{
    static const auto behind = next<Node* (*)(const Node*, const char*)>(GET_NODE);
    note(node, name, false);
    return behind(node, name);
}

Node* lookUps_documentNode(const Node* document, const char* name)
{
    static const auto behind = next<Node* (*)(const Node*, const char*)>(GET_DOCUMENT_NODE);
    note(document, name, false);
    return behind(document, name);
}

// rows and their keys are looked up by the reader itself
void lookUps_setColumn(XmlDocument* document, const char* row, const char* key, int column)
{
    using SetColumn = void (*)(XmlDocument*, const char*, const char*, int);
    note(document, row, false);
    note(document, key, true);
    next<SetColumn>(SET_COLUMN)(document, row, key, column);
}

} // namespace PANFx::Testing
