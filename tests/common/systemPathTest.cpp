#include "common/systemPath.h"

#include <cstdlib>
#include <gtest/gtest.h>

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

#endif
