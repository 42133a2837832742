// SPDX-License-Identifier: MIT
#pragma once

#include <SFML/Graphics/Image.hpp>
#include <cstdint>

/// A picture to draw into on the current OpenGL context: colour in 8 bits a channel, depth in 24 bits, several samples
/// a pixel. It must not outlive the context.
class Framebuffer {
public:
    Framebuffer() = default;
    Framebuffer(Framebuffer const&) = delete;
    Framebuffer& operator=(Framebuffer const&) = delete;
    ~Framebuffer();

    /// Makes the picture; from then on all drawing goes there, over its whole area.
    /// @param wide, high  pixels, above 0
    /// @param per_pixel   samples per pixel; 0 or 1 for a single one
    /// @return false if the driver does not support the size or the samples, see LargestSide and MostSamples
    bool Create(unsigned int wide, unsigned int high, unsigned int per_pixel);

    /// What the current context's driver allows.
    static unsigned int LargestSide(); ///< pixels
    static unsigned int MostSamples();

    /// Resolves the samples and reads the picture as drawn so far.
    /// @param pixels  width x height x 4 bytes: red, green, blue and what the show leaves as opacity; lower row first
    void ReadRows(std::uint8_t* pixels) const;

    /// Resolves the samples.
    /// @return the picture as drawn so far, opaque, upper row first
    sf::Image Read() const;

private:
    struct Target {
        unsigned int frame = 0;
        unsigned int color = 0;
        unsigned int depth = 0;
    };

    bool CreateTarget(Target& target, unsigned int per_pixel) const;
    static void Delete(Target& target);

    Target drawn;    ///< what the show draws into
    Target resolved; ///< one sample a pixel; for reading
    unsigned int width = 0;
    unsigned int height = 0;
};
