#pragma once

#include "support/PanelTest.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace PANFx::Testing {

/** A test of a small example: the instrument's file system is the example's own. */
class ExampleTest : public PanelTest
{
protected:
    explicit ExampleTest(const std::string& example)
    {
        namespace fs = std::filesystem;
        const fs::path root = fs::path(QTPANFX_SOURCE_DIR) / "examples" / example / "root";
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
            if (!entry.is_regular_file())
                continue;
            std::ostringstream bytes;
            bytes << std::ifstream(entry.path()).rdbuf();
            writeFile("/" + fs::relative(entry.path(), root).string(), bytes.str());
        }
    }
};

} // namespace PANFx::Testing
