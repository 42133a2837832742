// SPDX-License-Identifier: MIT
#include "tests/window/xscreen.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

TEST(OwnRehearsal, GoesToTheEndOfTheOwnShow) {
    XScreen screen;
    Process process({OWN_SHOW "/own-show-rehearse", "--tell", "--mute", "--samples", "0", "--size", "320x240"},
                    {"DISPLAY=" + screen.Name(), "ALSOFT_DRIVERS=null"});
    ASSERT_TRUE(screen.FindShow()) << process.Error();
    std::this_thread::sleep_for(std::chrono::seconds(1));
    screen.Press("End");
    screen.Press("Escape");
    EXPECT_EQ(process.Wait(std::chrono::seconds(10)), 0);
    EXPECT_THAT(process.Output(), testing::HasSubstr("End: beat 015.986 frame 436 stands x1"));
}
