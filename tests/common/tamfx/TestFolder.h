#pragma once

#include <string>

namespace PANFx::Testing {

/** A new temporary folder, removed with all it holds at the end. */
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();

    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /** The folder itself, free of links. */
    const std::string& path() const { return m_path; }
    std::string path(const std::string& name) const { return m_path + "/" + name; }

    /** Writes a file and gives its path. */
    std::string write(const std::string& name, const std::string& content) const;

    /** Content of a file; "<missing>" when there is none. */
    std::string read(const std::string& name) const;

    /** Names of all entries in order, with a blank between them. */
    std::string entries() const;

private:
    std::string m_path;
};

} // namespace PANFx::Testing
