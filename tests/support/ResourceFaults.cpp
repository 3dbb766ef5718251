#include "support/ResourceFaults.h"

#include "common/systemPath.h"
#include "common/tamfx/ArrayList.h"
#include "common/tamfx/ConfigurationManager.h"
#include "common/tamfx/Node.h"
#include "common/tamfx/NodeList.h"
#include "common/tamfx/XmlDocument.h"
#include "support/InFrontOf.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

// the operations as the compiler names them
#define GET_NODE_LIST "_ZNK5TAMFx6Common3Xml11XmlDocument17getNodeListByNameEPKc"
#define GET_NODE "_ZNK5TAMFx6Common3Xml8NodeList7getNodeEi"
#define GET_CHILD_NODE "_ZNK5TAMFx6Common3Xml4Node12getChildNodeEi"
#define OPEN_PROPERTY "_ZN5TAMFx6Config20ConfigurationManager12openPropertyEPKci"
#define LIST_ENTRY "_ZNK5TAMFx4Data10Collection9ArrayList2AtEi"
#define SYSTEM_PATH                                                                                \
    "_ZN5PANFx6Common10systemPathERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE"

namespace PANFx::Testing {

namespace {

using TAMFx::Common::Xml::Node;
using TAMFx::Common::Xml::NodeList;
using TAMFx::Common::Xml::XmlDocument;
using TAMFx::Config::ConfigurationManager;
using TAMFx::Data::Collection::ArrayList;
using TAMFx::Data::Properties::FileProperty;

ResourceFaults* active = nullptr;

} // namespace

ResourceFaults::ResourceFaults()
{
    if (std::exchange(active, this))
        std::abort();
}

ResourceFaults::~ResourceFaults()
{
    active = nullptr;
}

// a member function takes its object as the first argument

NodeList* faults_getNodeList(const XmlDocument* document, const char* name)
    IN_FRONT_OF(GET_NODE_LIST);
Node* faults_getNode(const NodeList* list, int index) IN_FRONT_OF(GET_NODE);
Node* faults_getChildNode(const Node* node, int index) IN_FRONT_OF(GET_CHILD_NODE);
FileProperty* faults_openProperty(ConfigurationManager* manager, const char* path, int mode)
    IN_FRONT_OF(OPEN_PROPERTY);
TAMFx::Data::Object* faults_listEntry(const ArrayList* list, int index) IN_FRONT_OF(LIST_ENTRY);
std::string faults_systemPath(const std::string& path) IN_FRONT_OF(SYSTEM_PATH);

NodeList* faults_getNodeList(const XmlDocument* document, const char* name)
{
    if (active && active->noElementList)
        return nullptr;
    return next<NodeList* (*)(const XmlDocument*, const char*)>(GET_NODE_LIST)(document, name);
}

Node* faults_getNode(const NodeList* list, int index)
{
    if (active && active->emptyPlaceInList == index)
        return nullptr;
    return next<Node* (*)(const NodeList*, int)>(GET_NODE)(list, index);
}

Node* faults_getChildNode(const Node* node, int index)
{
    if (active && active->emptyPlaceInStyles == index && std::strcmp(node->getName(), "Font") == 0)
        return nullptr;
    return next<Node* (*)(const Node*, int)>(GET_CHILD_NODE)(node, index);
}

FileProperty* faults_openProperty(ConfigurationManager* manager, const char* path, int mode)
{
    if (active && active->onOpenProperty)
        return active->onOpenProperty(path, mode);
    return next<FileProperty* (*)(ConfigurationManager*, const char*, int)>(OPEN_PROPERTY)(
        manager, path, mode);
}

TAMFx::Data::Object* faults_listEntry(const ArrayList* list, int index)
{
    if (active && active->onListEntry)
        active->onListEntry(index);
    return next<TAMFx::Data::Object* (*)(const ArrayList*, int)>(LIST_ENTRY)(list, index);
}

std::string faults_systemPath(const std::string& path)
{
    if (active && active->onPath)
        active->onPath(path);
    return next<std::string (*)(const std::string&)>(SYSTEM_PATH)(path);
}

} // namespace PANFx::Testing

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    using PANFx::Testing::active;
    if (active && active->failingAllocations > 0) {
        --active->failingAllocations;
        return nullptr;
    }
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
