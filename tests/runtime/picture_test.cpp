// SPDX-License-Identifier: MIT
#include "runtime/desktopwindow.h"
#include "runtime/picture.h"
#include "tests/support/glrecorder.h"

#include <gtest/gtest.h>

namespace {

TEST(Area, IsFittedAtFourToThreeIntoTheMiddleOfAnother) {
    struct {
        Area room;
        Area fitted;
        // clang-format off
    } const rows[] = {
        {{0, 0, 1024, 768},     {0, 0, 1024, 768}},
        {{0, 0, 1920, 1080},    {240, 0, 1440, 1080}},
        {{0, 0, 1080, 1920},    {0, 555, 1080, 810}},
        {{1920, 40, 800, 1000}, {1920, 240, 800, 600}},
        {{0, 0, 1366, 768},     {171, 0, 1024, 768}},
        {{0, 0, 1, 1},          {0, 0, 1, 1}},
    };
    // clang-format on
    for (auto const& row : rows) EXPECT_EQ(fitted(row.room), row.fitted) << row.room.width;
}

TEST(Area, IsSharedWithAnotherWhereBothAre) {
    EXPECT_EQ(shared({0, 30, 1824, 738}, {1024, 0, 800, 600}), (Area{1024, 30, 800, 570}));
    EXPECT_EQ(shared({0, 0, 10, 10}, {20, 20, 5, 5}).width, 0);
}

TEST(WindowPicture, SuitsTheRoomOrIsAsWideAsAskedForIfThatFits) {
    Area const room{0, 0, 1920, 1080};
    EXPECT_EQ(window_picture(0, room), (Area{420, 135, 1080, 810}));
    EXPECT_EQ(window_picture(640, room), (Area{640, 300, 640, 480}));
    EXPECT_EQ(window_picture(5000, room), (Area{240, 0, 1440, 1080}));
    EXPECT_EQ(window_picture(1003, room).width, 1000);
    EXPECT_EQ(window_picture(1, room).width, 4);
}

std::string calls_of(Picture& picture, int width, int height) {
    gl::reset();
    picture.Resize(width, height);
    picture.Frame();
    EXPECT_TRUE(gl::errors().empty());
    return gl::calls();
}

TEST(Picture, OfTheWindowsShapeFillsItAndNeedsNoFrame) {
    Picture picture(false);
    EXPECT_EQ(calls_of(picture, 800, 600), "Viewport(0,0,800,600)");
}

TEST(Picture, ThatIsStretchedFillsAnyWindow) {
    Picture picture(true);
    EXPECT_EQ(calls_of(picture, 1920, 1080), "Viewport(0,0,1920,1080)");
    EXPECT_EQ(calls_of(picture, 1080, 1920), "Viewport(0,0,1080,1920)");
}

constexpr char const* before = " PushAttrib(COLOR|SCISSOR) ClearColor(0,0,0,0) Enable(SCISSOR_TEST) ";

TEST(Picture, InAWideWindowHasBlackOnBothSides) {
    Picture picture(false);
    EXPECT_EQ(calls_of(picture, 1366, 768), std::string("Viewport(171,0,1024,768)") + before +
                                                "Scissor(0,0,171,768) Clear(COLOR) Scissor(1195,0,171,768) "
                                                "Clear(COLOR) PopAttrib");
}

TEST(Picture, InATallWindowHasBlackBelowAndAbove) {
    Picture picture(false);
    EXPECT_EQ(calls_of(picture, 400, 501), std::string("Viewport(0,101,400,300)") + before +
                                               "Scissor(0,0,400,101) Clear(COLOR) Scissor(0,401,400,100) "
                                               "Clear(COLOR) PopAttrib");
}

} // namespace
