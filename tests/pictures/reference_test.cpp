// SPDX-License-Identifier: MIT
#include "references.h"
#include "studio.h"
#include "tests/support/images.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// One pixel in five hundred. On processors of other generations two pixels differed.
constexpr unsigned int most_differing = Studio::width * Studio::height / 500;

/// Plays the show once for all tests and keeps the picture of each moment and of the frame after it.
class ReferencePictures : public testing::Test {
protected:
    static void SetUpTestSuite() {
        Studio studio;
        ready = studio.Open();
        if (!ready) return;
        for (Reference const& reference : references) {
            int const frame = studio.FrameOf(reference.scene, reference.at);
            drawn.push_back(studio.Picture(frame));
            late.push_back(studio.Picture(frame + 1));
        }
    }

    void SetUp() override { ASSERT_TRUE(ready) << "OpenGL cannot draw off-screen here"; }

    static sf::Image Load(Reference const& reference) {
        sf::Image image;
        EXPECT_TRUE(image.loadFromFile(reference.Path())) << "is missing; the target update-pictures draws it";
        return image;
    }

    static inline bool ready = false;
    static inline std::vector<sf::Image> drawn;
    static inline std::vector<sf::Image> late;
};

sf::Image shifted_by_one_pixel(sf::Image const& image) {
    sf::Image shifted = image;
    sf::Vector2u const size = image.getSize();
    shifted.copy(image, 1, 0, sf::IntRect(0, 0, static_cast<int>(size.x) - 1, static_cast<int>(size.y)));
    return shifted;
}

} // namespace

TEST_F(ReferencePictures, AreWhatTheShowDraws) {
    for (std::size_t i = 0; i < std::size(references); ++i) {
        SCOPED_TRACE(references[i].Path());
        EXPECT_LE(differing_pixels(Load(references[i]), drawn[i]), most_differing);
    }
}

// The comparison must be able to fail.
TEST_F(ReferencePictures, OfFastMomentsDoNotMatchOneFrameLater) {
    for (std::size_t i = 0; i < std::size(references); ++i) {
        if (!references[i].fast) continue;
        SCOPED_TRACE(references[i].Path());
        EXPECT_GT(differing_pixels(Load(references[i]), late[i]), most_differing);
    }
}

TEST_F(ReferencePictures, DoNotMatchOneAnother) {
    for (std::size_t i = 0; i + 1 < std::size(references); ++i) {
        SCOPED_TRACE(references[i].Path());
        EXPECT_GT(differing_pixels(Load(references[i]), drawn[i + 1]), most_differing);
    }
}

TEST_F(ReferencePictures, OfThinLinesDoNotMatchOnePixelToTheSide) {
    std::size_t const broken_glass = 1;
    ASSERT_EQ(references[broken_glass].Path(), "tests/pictures/reference/intro_012.400.png");
    sf::Image const shifted = shifted_by_one_pixel(drawn[broken_glass]);
    EXPECT_GT(differing_pixels(Load(references[broken_glass]), shifted), most_differing);
}
