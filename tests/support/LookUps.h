#pragma once

#include <string>
#include <vector>

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Testing {

/** One name that was looked up in an XML element. */
struct LookUp
{
    const TAMFx::Common::Xml::Node* element; ///< to be compared only
    std::string name;
    bool attribute; ///< else a child element
};

/**
 * Notes which attributes and child elements the libraries look up by name while the object lives,
 * found or not. One object at a time.
 */
class LookUps
{
public:
    LookUps();
    ~LookUps();

    LookUps(const LookUps&) = delete;
    LookUps& operator=(const LookUps&) = delete;

    std::vector<LookUp> all; ///< in their order
};

} // namespace PANFx::Testing
