// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace effect {

enum texture_filter { filter_nearest = 0, filter_linear = 1, filter_mipmap = 2 };

/// A picture of one byte per texel, its sides 64, 128 or 256 texels.
class Texture {
public:
    Texture() = default;
    virtual ~Texture() = default;
    Texture(Texture const&) = delete;
    Texture& operator=(Texture const&) = delete;

    /// Makes the picture, all black. Each side becomes 64 (up to 64), 128 (up to 128) or 256 (above).
    /// @return true
    virtual bool Init(int w, int h);

    /// Uploads the picture, as grey RGB texels, to the texture of this name; needs a current OpenGL context and Init.
    void SetTexture(texture_filter f);

    /// height x width bytes, row by row; null before Init.
    unsigned char const* GetPixels() const { return pixels.get(); }
    int GetWidth() const { return width; }
    int GetHeight() const { return height; }

protected:
    std::unique_ptr<unsigned char[]> pixels;
    int width = 0;
    int height = 0;
    int size = 0; ///< texels

private:
    unsigned int texture_name = 0; ///< never generated: uploads go to the default texture
};

} // namespace effect
