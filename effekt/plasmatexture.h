// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/texture.h"

namespace effect {

/// A moving plasma: two windows slide over a table of waves, and a cycling palette colours their sum.
class PlasmaTexture final : public Texture {
public:
    /// Makes the picture and the table of waves, of twice its width and height.
    /// @return true
    bool Init(int w, int h) override;

    /// Renders the whole picture.
    /// @param t  time, in steps of 1/500 s
    void RenderTexture(unsigned int t);

    /// Turns the palette.
    /// @param t  time, as above
    void UpdatePalette(double t);

    /// @param index  0 to 255
    /// @return 3 bytes red, green, blue; only the first is ever non-zero
    unsigned char const* GetPaletteEntry(int index) const { return palette[index]; }

private:
    void InitPlasma();

    unsigned char palette[256][3] = {};
    std::unique_ptr<unsigned char[]> waves; ///< sums of both, modulo 256: 2 height x 2 width bytes, row by row
};

} // namespace effect
