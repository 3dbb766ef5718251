#include "common/tamfx/Object.h"

#include "common/tamfx/Witness.h"

#include <gtest/gtest.h>

using PANFx::Testing::Witness;

TEST(ObjectTest, IsFreedThroughItsBase)
{
    const int before = Witness::alive;
    TAMFx::Data::Object* const object = new Witness;
    EXPECT_EQ(Witness::alive, before + 1);
    delete object;
    EXPECT_EQ(Witness::alive, before);
}
