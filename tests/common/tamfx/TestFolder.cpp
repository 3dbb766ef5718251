#include "common/tamfx/TestFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <unistd.h>

namespace PANFx::Testing {

TestFolder::TestFolder()
{
    // In memory where there is such a place: many tests wait for what they write to be synced.
    const bool memory = access("/dev/shm", W_OK) == 0;
    const std::filesystem::path parent =
        memory ? "/dev/shm" : std::filesystem::temp_directory_path();
    std::string name = parent / "tamfx.XXXXXX";
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary folder");
    m_path = std::filesystem::canonical(name);
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string TestFolder::write(const std::string& name, const std::string& content) const
{
    // A new file: some file systems wait for the disk when an old one is overwritten.
    std::filesystem::remove(path(name));
    std::ofstream file(path(name), std::ios::binary);
    file << content;
    file.close();
    if (!file)
        throw std::runtime_error("cannot write " + path(name));
    return path(name);
}

std::string TestFolder::read(const std::string& name) const
{
    std::ifstream file(path(name), std::ios::binary);
    if (!file)
        return "<missing>";
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string TestFolder::entries() const
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_path))
        names.insert(entry.path().filename());
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : " ") + name;
    return text;
}

} // namespace PANFx::Testing
