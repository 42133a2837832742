// SPDX-License-Identifier: MIT
#include "tests/support/images.h"
#include "tests/web/eslayer.h"
#include "tests/web/filmstrip.h"

#include <GL/glu.h>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr unsigned int side = 256; // pixels
constexpr unsigned int samples = 4;

/// @return what is drawn on black, over the square from -1 to 1
template<typename Draw>
sf::Image picture(Draw draw, fixedgl::Lines lines = fixedgl::Lines::Rectangles) {
    EsLayer layer;
    EXPECT_TRUE(layer.Open(side, side, samples, lines));
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    draw();
    return layer.Read();
}

void square(float from, float to, float z = 0) {
    glBegin(GL_QUADS);
    glVertex3f(from, from, z);
    glVertex3f(to, from, z);
    glVertex3f(to, to, z);
    glVertex3f(from, to, z);
    glEnd();
}

void lines_through_space(int count) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> at(-3, 3);
    glMatrixMode(GL_PROJECTION);
    glFrustum(-1, 1, -1, 1, 1, 100);
    glMatrixMode(GL_MODELVIEW);
    glTranslatef(0, 0, -3.5f); // some of them pass the eye
    glBegin(GL_LINES);
    for (int i = 0; i < 2 * count; ++i) {
        float const x = at(random);
        float const y = at(random);
        glVertex3f(x, y, at(random));
    }
    glEnd();
}

/// Pixels that are not black.
unsigned int lit(sf::Image const& image) {
    return differing_pixels(image, plain_image(side, side, sf::Color::Black), 0);
}

/// Both pictures, in samples.
void expect_equal(sf::Image const& a, sf::Image const& b, unsigned int most = 0) {
    EXPECT_GT(lit(a), 0u);
    EXPECT_LE(differing_pixels(a, b, 0), most);
}

} // namespace

// Away from the edges of the picture, where a driver may clip a line before it is made wide.
TEST(Layer, DrawsLinesAsRectanglesWhereTheDriverDrawsThem) {
    for (float const width : {1.0f, 3.0f}) {
        auto const draw = [=] {
            glLineWidth(width);
            lines_through_space(40);
        };
        sf::Image const rectangles = picture(draw);
        sf::Image const drivers = picture(draw, fixedgl::Lines::Driver);
        EXPECT_GT(lit(drivers), 3000u);
        EXPECT_LE(differing_pixels(rectangles, drivers, 0), lit(drivers) / 100) << width;
    }
}

TEST(Layer, KeepsTheOrderOfLinesAndTriangles) {
    for (auto const lines : {fixedgl::Lines::Rectangles, fixedgl::Lines::Driver}) {
        sf::Image const image = picture(
            [] {
                glColor3f(1, 0, 0);
                square(-0.5f, 0.5f);
                glColor3f(0, 1, 0);
                glBegin(GL_LINES);
                glVertex3f(-1, 1.0f / side, 0); // through the middle of a row
                glVertex3f(1, 1.0f / side, 0);
                glEnd();
                glColor3f(0, 0, 1);
                square(-0.25f, 0.25f);
            },
            lines);
        SCOPED_TRACE(lines == fixedgl::Lines::Driver ? "the driver's lines" : "rectangles");
        EXPECT_EQ(image.getPixel(side / 2, side / 2), sf::Color::Blue);
        EXPECT_EQ(image.getPixel(side / 3, side / 2 - 1), sf::Color::Green);
        EXPECT_EQ(image.getPixel(side / 3, side / 3), sf::Color::Red);
    }
}

TEST(Layer, DropsWhatIsLeftOfAnIncompletePrimitive) {
    auto const three = [](GLenum mode) {
        return picture([=] {
            glBegin(mode);
            glVertex3f(-0.9f, 0.1f, 0);
            glVertex3f(0.9f, 0.1f, 0);
            glVertex3f(0, 0.9f, 0);
            glEnd();
        });
    };
    EXPECT_EQ(lit(three(GL_QUADS)), 0u);
    EXPECT_EQ(three(GL_LINES).getPixel(side / 2, 20), sf::Color::Black);
    EXPECT_GT(lit(three(GL_LINES)), 200u);
    EXPECT_GT(lit(three(GL_TRIANGLES)), 8000u);
    expect_equal(three(GL_TRIANGLES), three(GL_POLYGON));
}

TEST(Layer, DrawsAListAsTheSameCallsWithoutOne) {
    struct Case {
        char const* name;
        void (*calls)();
    };
    constexpr Case cases[] = {
        {"a short one", [] { square(-0.5f, 0.5f); }},
        {"a long one",
         [] {
             glBegin(GL_TRIANGLES);
             for (int i = 0; i < 300; ++i)
                 glVertex3f(static_cast<float>(i % 7) / 7, static_cast<float>(i % 11) / 11, 0);
             glEnd();
         }},
        {"long lines",
         [] {
             glBegin(GL_LINES);
             for (int i = 0; i < 300; ++i)
                 glVertex3f(static_cast<float>(i % 7) / 7, static_cast<float>(i % 11) / 11, 0);
             glEnd();
         }},
        {"colours within",
         [] {
             glBegin(GL_TRIANGLES);
             glColor3f(1, 0, 0);
             glVertex3f(-1, -1, 0);
             glColor3f(0, 1, 0);
             glVertex3f(1, -1, 0);
             glVertex3f(0, 1, 0);
             glEnd();
         }},
        {"matrices and colours around",
         [] {
             glColor3f(0.2f, 0.4f, 0.6f);
             glPushMatrix();
             glRotatef(30, 1, 2, 3);
             glTranslatef(0.1f, 0.2f, 0);
             square(-0.5f, 0.5f);
             glPopMatrix();
             glScalef(0.1f, 0.1f, 0.1f);
             square(-0.5f, 0.5f);
         }},
        {"a refused call within",
         [] {
             glBegin(GL_QUADS);
             glLineWidth(9);
             glVertex3f(-0.5f, -0.5f, 0);
             glVertex3f(0.5f, -0.5f, 0);
             glVertex3f(0.5f, 0.5f, 0);
             glVertex3f(-0.5f, 0.5f, 0);
             glEnd();
         }},
    };
    for (Case const& c : cases) {
        SCOPED_TRACE(c.name);
        auto const turned = [&](auto draw) {
            return picture([&] {
                glColor3f(1, 1, 0);
                glRotatef(20, 0, 0, 1);
                draw();
            });
        };
        expect_equal(turned([&] { c.calls(); }), turned([&] {
                         glNewList(5, GL_COMPILE);
                         c.calls();
                         glEndList();
                         glNewList(6, GL_COMPILE);
                         glCallList(5);
                         glEndList();
                         glCallList(6);
                     }));
    }
}

// Each command of the list acts as if issued there: the inner glBegin is refused, the inner glEnd closes the primitive.
TEST(Layer, JoinsAListsVerticesToAnOpenPrimitive) {
    expect_equal(picture([] {
                     glNewList(1, GL_COMPILE);
                     glBegin(GL_LINES);
                     glVertex3f(0.5f, 0.5f, 0);
                     glVertex3f(-0.5f, 0.5f, 0);
                     glEnd();
                     glEndList();
                     glBegin(GL_QUADS);
                     glVertex3f(-0.5f, -0.5f, 0);
                     glVertex3f(0.5f, -0.5f, 0);
                     glCallList(1);
                     glEnd();
                 }),
                 picture([] { square(-0.5f, 0.5f); }));
}

TEST(Layer, DrawsTheTunnelsWireByTheStandard) {
    auto const tunnel = [](bool standard_calls) {
        return picture([&] {
            effect::look.standard_wire = standard_calls;
            init_gl();
            kore::Demo demo(beat_seconds);
            init_demo(demo, nullptr, beat_seconds);
            Playback playback(demo, 60);
            playback.SkipTo(static_cast<int>((16 + 48 + 96 + 24 + 30.5) * beat_seconds * 60));
            playback.Draw();
        });
    };
    expect_equal(tunnel(false), tunnel(true));
}

TEST(Layer, RestoresPushedAttributes) {
    sf::Image const image = picture([] {
        glClearColor(0, 1, 0, 1);
        glPushAttrib(GL_COLOR_BUFFER_BIT | GL_SCISSOR_BIT);
        glClearColor(1, 0, 0, 1);
        glEnable(GL_SCISSOR_TEST);
        glScissor(0, 0, 10, 10);
        glPopAttrib();
        glClear(GL_COLOR_BUFFER_BIT);
    });
    EXPECT_EQ(image.getPixel(0, side - 1), sf::Color::Green);
    EXPECT_EQ(image.getPixel(side - 1, 0), sf::Color::Green);
}

TEST(Layer, ModulatesByTheFirstTexelOfACompleteTexture) {
    auto const drawn = [](GLint filter, bool mipmaps) {
        return picture([=] {
                   constexpr unsigned char texels[2][2][3] = {{{128, 64, 255}, {0, 0, 0}}, {{0, 0, 0}, {0, 0, 0}}};
                   glEnable(GL_TEXTURE_2D);
                   glBindTexture(GL_TEXTURE_2D, 3);
                   glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
                   glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
                   if (mipmaps) {
                       gluBuild2DMipmaps(GL_TEXTURE_2D, 3, 2, 2, GL_RGB, GL_UNSIGNED_BYTE, texels);
                   } else {
                       glTexImage2D(GL_TEXTURE_2D, 0, 3, 2, 2, 0, GL_RGB, GL_UNSIGNED_BYTE, texels);
                   }
                   square(-1, 1);
               })
            .getPixel(side / 2, side / 2);
    };
    EXPECT_EQ(drawn(GL_NEAREST, false), sf::Color(128, 64, 255));
    EXPECT_EQ(drawn(GL_NEAREST_MIPMAP_NEAREST, true), sf::Color(128, 64, 255));
    EXPECT_EQ(drawn(GL_LINEAR_MIPMAP_NEAREST, false), sf::Color::White); // incomplete
}

TEST(Layer, DrawsWhatStandsTogetherWithOneCall) {
    auto const calls = [](auto draw, fixedgl::Lines lines = fixedgl::Lines::Rectangles) {
        picture(draw, lines);
        return EsLayer::DrawCalls();
    };
    auto const alternating = [] {
        for (int i = 0; i < 100; ++i) {
            glTranslatef(0.01f, 0, 0);
            square(-0.5f, 0.5f);
            glLineWidth(1);
            glBegin(GL_LINES);
            glVertex3f(0, 0, 0);
            glVertex3f(1, 1, 0);
            glEnd();
        }
    };
    EXPECT_EQ(calls(alternating), 1);
    EXPECT_EQ(calls(alternating, fixedgl::Lines::Driver), 200);
    EXPECT_EQ(calls([] {
                  square(0, 1);
                  glLineWidth(1); // as it was
                  square(0, 1);
                  glEnable(GL_DEPTH_TEST);
                  square(0, 1);
              }),
              2);
}
