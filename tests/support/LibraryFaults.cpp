#include "support/LibraryFaults.h"

#include "common/tamfx/XmlDocument.h"
#include "components/ComponentFactory.h"
#include "support/InFrontOf.h"

#include <cstdlib>
#include <utility>

// the two member functions as the compiler names them
#define LOAD_XML_FILE "_ZN5TAMFx6Common3Xml11XmlDocument11LoadXMLFileEPKc"
#define CREATE_COMPONENT                                                                           \
    "_ZN5PANFx10Components16ComponentFactory15createComponentEP7QWidget"                           \
    "NSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEES9_PN5TAMFx6Common3Xml4NodeE"

namespace PANFx::Testing {

namespace {

using Components::ComponentFactory;
using Components::ZELComponent;
using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::XmlDocument;

LibraryFaults* active = nullptr;

} // namespace

LibraryFaults::LibraryFaults()
{
    if (std::exchange(active, this))
        std::abort();
}

LibraryFaults::~LibraryFaults()
{
    active = nullptr;
}

bool faults_loadXMLFile(XmlDocument* document, const char* path) IN_FRONT_OF(LOAD_XML_FILE);
ZELComponent* faults_createComponent(ComponentFactory* factory, QWidget* parent, std::string type,
                                     std::string id, Node* layout) IN_FRONT_OF(CREATE_COMPONENT);

bool faults_loadXMLFile(XmlDocument* document, const char* path)
{
    if (active && active->onLoad)
        active->onLoad(path);
    return next<bool (*)(XmlDocument*, const char*)>(LOAD_XML_FILE)(document, path);
}

ZELComponent* faults_createComponent(ComponentFactory* factory, QWidget* parent, std::string type,
                                     std::string id, Node* layout)
{
    using Create = ZELComponent* (*)(ComponentFactory*, QWidget*, std::string, std::string, Node*);
    if (active && active->onCreate)
        active->onCreate(type, id);
    return next<Create>(CREATE_COMPONENT)(factory, parent, std::move(type), std::move(id), layout);
}

} // namespace PANFx::Testing
