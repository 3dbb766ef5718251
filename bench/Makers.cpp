#include "Candidate.h"

#include <stdexcept>

namespace bench {

const std::vector<Maker>& makers()
{
    static const std::vector<Maker> all = {
        {"code", "code (the floor)", makeCode},
        {"ours", "QTPANFx", makeOurs},
        {"classes", "QUiLoader, own classes",
         [](const Site& site) { return makeQUiLoader(site, true); }},
        {"plain", "QUiLoader, QLabel and style sheets",
         [](const Site& site) { return makeQUiLoader(site, false); }},
        {"qml-memory", "QML plain, component in memory",
         [](const Site& site) { return makeQml(site, QmlState::InMemory); }},
        {"qml-cache", "QML plain, from the disk cache",
         [](const Site& site) { return makeQml(site, QmlState::DiskCache); }},
        {"qml-text", "QML plain, from text",
         [](const Site& site) { return makeQml(site, QmlState::Text); }},
    };
    return all;
}

const Maker& maker(const std::string& key)
{
    for (const Maker& candidate : makers()) {
        if (candidate.key == key)
            return candidate;
    }
    throw std::runtime_error("no candidate " + key);
}

} // namespace bench
