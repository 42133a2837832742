// SPDX-License-Identifier: MIT
#include "tests/support/glrecorder.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::DoubleNear;
using testing::ElementsAre;

namespace {

class GlRecorder : public testing::Test {
protected:
    void SetUp() override { gl::reset(); }
};

TEST_F(GlRecorder, LogsCallsWithTheirArguments) {
    glPushMatrix();
    glTranslatef(0, 5, -0.25f);
    glBegin(GL_LINES);
    glVertex3f(1, 2, 3);
    glEnd();
    glPopMatrix();
    EXPECT_EQ(gl::calls(), "PushMatrix Translate(0,5,-0.25) Begin(LINES) Vertex(1,2,3) End PopMatrix");
    EXPECT_EQ(gl::call_count(), 6u);
}

TEST_F(GlRecorder, KeepsListContentsOutOfTheLog) {
    unsigned int const list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    glBegin(GL_TRIANGLES);
    glEnd();
    glEndList();
    EXPECT_EQ(gl::list_content(list), "Begin(TRIANGLES) End");
    EXPECT_FALSE(gl::inside_primitive());

    gl::clear_log();
    gl::name_list(list, "leaf");
    glCallList(list);
    EXPECT_EQ(gl::calls(), "CallList(leaf)");
    ASSERT_EQ(gl::draws().size(), 1u);
    EXPECT_EQ(gl::draws()[0].name, "leaf");
}

TEST_F(GlRecorder, MultipliesMatricesOntoTheTop) {
    glTranslatef(10, 0, 0);
    glRotatef(90, 0, 0, 1);
    glScalef(2, 2, 2);
    // Scaled to (2, 0, 0), turned to (0, 2, 0), moved to (10, 2, 0).
    EXPECT_THAT(gl::transform(gl::model_view(), 1, 0, 0),
                ElementsAre(DoubleNear(10, 1e-12), DoubleNear(2, 1e-12), DoubleNear(0, 1e-12)));
}

TEST_F(GlRecorder, LooksAlongNegativeZ) {
    gluLookAt(0, 0, 10, 0, 0, 0, 0, 1, 0);
    EXPECT_THAT(gl::transform(gl::model_view(), 0, 3, 0),
                ElementsAre(DoubleNear(0, 1e-12), DoubleNear(3, 1e-12), DoubleNear(-10, 1e-12)));
}

TEST_F(GlRecorder, RefusesToPopTheLastMatrix) {
    glPopMatrix();
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_THAT(gl::errors(), ElementsAre("STACK_UNDERFLOW PopMatrix"));
}

TEST_F(GlRecorder, RefusesToPushMoreThanTheStandardGrants) {
    for (int i = 0; i < 40; ++i) glPushMatrix();
    EXPECT_EQ(gl::model_view_depth(), 32u);
    EXPECT_EQ(gl::errors().size(), 9u);
}

TEST_F(GlRecorder, RefusesMatrixCallsInsideAPrimitive) {
    glBegin(GL_QUADS);
    glPushMatrix();
    glTranslatef(1, 2, 3);
    EXPECT_EQ(gl::model_view_depth(), 1u);
    EXPECT_EQ(gl::model_view()[12], 0);
    EXPECT_THAT(gl::errors(), ElementsAre("INVALID_OPERATION PushMatrix", "INVALID_OPERATION Translate"));
}

TEST_F(GlRecorder, LetsAListInsideAPrimitiveCloseIt) {
    unsigned int const list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    glBegin(GL_TRIANGLES);
    glEnd();
    glEndList();
    glBegin(GL_QUADS);
    glCallList(list);
    EXPECT_FALSE(gl::inside_primitive());
    EXPECT_THAT(gl::errors(), ElementsAre("INVALID_OPERATION Begin"));
    EXPECT_TRUE(gl::draws()[0].inside_primitive);
}

TEST_F(GlRecorder, TellsStreamsApartByTheirChecksumInBothKindsOfLogging) {
    auto const sum_of = [](gl::Logging logging, float x) {
        gl::reset(logging);
        glTranslatef(x, 0, 0);
        return gl::checksum();
    };
    EXPECT_EQ(sum_of(gl::Logging::Text, 1), sum_of(gl::Logging::Sums, 1));
    EXPECT_NE(sum_of(gl::Logging::Sums, 1), sum_of(gl::Logging::Sums, 1.0000001f));
}

} // namespace
