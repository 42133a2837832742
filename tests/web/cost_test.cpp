// SPDX-License-Identifier: MIT
// What the layer does without a driver.

#include "runtime/frame.h"
#include "tests/show/wholeshow.h"
#include "tests/support/allocations.h"
#include "tests/web/nodriver.h"
#include "web/gl/fixedgl.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

TEST(LayerWithoutADriver, AllocatesNothingInASteadyFrame) {
    ASSERT_TRUE(fixedgl::open(nodriver::make()));
    init_gl();
    long before = 0;
    long frames = 0;
    std::map<std::string, long> made;
    std::map<std::string, long> most_draws;
    wholeshow::play(
        60,
        [&] {
            before = allocations::made;
            nodriver::draw_calls = 0;
        },
        [&](wholeshow::Frame const& frame) {
            fixedgl::flush();
            long const here = allocations::made - before;
            ++frames;
            made[frame.scene] += frame.first ? 0 : here;
            most_draws[frame.scene] = std::max(most_draws[frame.scene], nodriver::draw_calls);
        });
    fixedgl::close();
    EXPECT_GT(frames, 10000);
    for (auto const& [scene, count] : made) EXPECT_EQ(count, 0) << scene;
    for (auto const& [scene, draws] : most_draws) {
        EXPECT_GT(draws, 0) << scene;
        EXPECT_LT(draws, 300) << scene;
        std::cout << scene << ": at most " << draws << " draw calls a frame\n";
    }
}

namespace {

int made = 0; // vertex arrays
int deleted = 0;

fixedgl::Driver counting_driver() {
    made = deleted = 0;
    fixedgl::Driver driver = nodriver::make();
    driver.GenVertexArrays = [](GLsizei, GLuint* names) { *names = static_cast<GLuint>(++made); };
    driver.DeleteVertexArrays = [](GLsizei, GLuint const*) { ++deleted; };
    return driver;
}

/// Makes a list that is too long to be transformed with all others.
void make_list(GLuint name, float x, GLenum mode = GL_TRIANGLES) {
    glNewList(name, GL_COMPILE);
    glBegin(mode);
    for (int i = 0; i < 240; ++i) glVertex3f(x, static_cast<float>(i), 0);
    glEnd();
    glEndList();
}

} // namespace

TEST(LayerWithoutADriver, HandsTheBuffersOfErasedListsToEqualOnes) {
    ASSERT_TRUE(fixedgl::open(counting_driver()));
    int const own = made;
    for (GLuint const name : {1u, 2u, 3u}) make_list(name, static_cast<float>(name));
    EXPECT_EQ(made, own + 3);

    glDeleteLists(1, 3);
    for (GLuint const name : {3u, 1u, 2u}) make_list(name, static_cast<float>(name));
    fixedgl::flush();
    EXPECT_EQ(made, own + 3);
    EXPECT_EQ(deleted, 0);

    glDeleteLists(1, 3);
    make_list(1, 1);
    make_list(2, 1); // the same once more, and there was only one
    make_list(3, 3, GL_QUADS);
    EXPECT_EQ(made, own + 5);
    EXPECT_EQ(deleted, 0) << "before the end of the frame";
    fixedgl::flush();
    EXPECT_EQ(deleted, 2);

    glDeleteLists(1, 3);
    fixedgl::flush();
    make_list(1, 1);
    EXPECT_EQ(made, own + 6) << "an earlier frame's are gone";
    glDeleteLists(1, 1);
    fixedgl::close();
    EXPECT_EQ(deleted, made);
}
