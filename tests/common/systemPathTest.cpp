#include "common/systemPath.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

using PANFx::Common::systemPath;

namespace {

class SystemPath : public ::testing::Test
{
protected:
    ~SystemPath() override { unsetenv("QTPANFX_SYSROOT"); }

    static void setRoot(const char* root) { setenv("QTPANFX_SYSROOT", root, 1); }
};

} // namespace

TEST_F(SystemPath, isThePathItselfWhereNothingIsSet)
{
    unsetenv("QTPANFX_SYSROOT");
    EXPECT_EQ(systemPath("/data/db/OSKDB.db"), "/data/db/OSKDB.db");
    EXPECT_EQ(systemPath(""), "");
}

#if defined(QTPANFX_WITH_SYSROOT)

TEST_F(SystemPath, putsTheRootInFrontOfAbsolutePaths)
{
    setRoot("/home/me/rootfs");
    EXPECT_EQ(systemPath("/data/db/OSKDB.db"), "/home/me/rootfs/data/db/OSKDB.db");
    EXPECT_EQ(systemPath("/"), "/home/me/rootfs/");
}

TEST_F(SystemPath, keepsDoubledSlashesAsTheyAre)
{
    setRoot("/root");
    EXPECT_EQ(systemPath("/app/bin/resource//img/a.png"), "/root/app/bin/resource//img/a.png");
}

TEST_F(SystemPath, leavesRelativePathsAlone)
{
    setRoot("/root");
    EXPECT_EQ(systemPath("resource/a.png"), "resource/a.png");
    EXPECT_EQ(systemPath("./a"), "./a");
    EXPECT_EQ(systemPath(""), "");
}

TEST_F(SystemPath, takesAnEmptyRootForNone)
{
    setRoot("");
    EXPECT_EQ(systemPath("/tmp"), "/tmp");
}

TEST_F(SystemPath, looksAtTheRootEachTime)
{
    setRoot("/a");
    EXPECT_EQ(systemPath("/x"), "/a/x");
    setRoot("/b");
    EXPECT_EQ(systemPath("/x"), "/b/x");
}

#else

TEST_F(SystemPath, ignoresTheRootWhereTheOptionIsOff)
{
    setRoot("/root");
    EXPECT_EQ(systemPath("/tmp"), "/tmp");
}

// This program holds one source of the library; here is why that is enough.
TEST_F(SystemPath, isAllOfTheLibraryThatTheOptionChanges)
{
    std::vector<std::string> changed;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(QTPANFX_SOURCE_DIR "/src")) {
        const std::string ending = entry.path().extension().string();
        if (ending != ".cpp" && ending != ".h")
            continue;
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        for (const char* trace : {"QTPANFX_WITH_SYSROOT", "\"QTPANFX_SYSROOT\""}) {
            if (text.find(trace) != std::string::npos)
                changed.push_back(entry.path().filename().string() + ": " + trace);
        }
    }
    EXPECT_EQ(changed, (std::vector<std::string>{"systemPath.cpp: QTPANFX_WITH_SYSROOT",
                                                 "systemPath.cpp: \"QTPANFX_SYSROOT\""}));
}

#endif
