// SPDX-License-Identifier: MIT
#include "effekt/texturemountain.h"

namespace effect {

namespace {

/// One corner of the grid.
struct Corner {
    float x;
    float y;
    float z;
};

// Inline: there are 15876 of them in a frame.
[[gnu::always_inline]] inline void triangle(GLenum primitive, Corner const& a, Corner const& b, Corner const& c) {
    glBegin(primitive);
    glVertex3f(a.x, a.y, a.z);
    glVertex3f(b.x, b.y, b.z);
    glVertex3f(c.x, c.y, c.z);
    glEnd();
}

} // namespace

TextureMountain::TextureMountain() {
    myPlasma.Init(grid_size, grid_size);
    for (std::size_t value = 0; value < myHeights.size(); ++value) {
        myHeights[value] = 255.0f / static_cast<float>(value) / 50;
    }
}

void TextureMountain::UpdateLogic(kore::StateData const& state) {
    myPlasma.RenderTexture(static_cast<unsigned int>(static_cast<int>(500 * state.time)));
    UpdateBlink();
}

void TextureMountain::InternalDraw() {
    constexpr int half = grid_size / 2;
    unsigned char const* pixel = myPlasma.GetPixels();
    float const grey = Grey();
    float const negative_grey = NegativeGrey();

    glPushMatrix();
    // Deliberate: one texel per cell without a skip at the end of a row, so each row starts one further left.
    for (int r = -half; r < half - 1; ++r) {
        for (int c = -half; c < half - 1; ++c, ++pixel) {
            auto const x = static_cast<float>(c);
            auto const y = static_cast<float>(r);
            Corner const p00{x, y, myHeights[pixel[0]]};
            Corner const p01{x + 1, y, myHeights[pixel[1]]};
            Corner const p11{x + 1, y + 1, myHeights[pixel[grid_size + 1]]};
            Corner const p10{x, y + 1, myHeights[pixel[grid_size]]};
            Issue(grey);
            triangle(GL_POLYGON, p00, p01, p11);
            triangle(GL_POLYGON, p00, p11, p10);
            // Deliberate: lines take vertices in pairs, so the third of each triangle is dropped.
            Issue(negative_grey);
            triangle(GL_LINES, p00, p01, p11);
            triangle(GL_LINES, p00, p11, p10);
        }
    }
    glPopMatrix();
}

} // namespace effect
