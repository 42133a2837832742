// SPDX-License-Identifier: MIT
// What the tests ask of the layer in a process of its own, as it and a desktop driver define the same entry points.
//
// usage: layer_program frames FILE     draws the frames of the strip; FILE gets them, three bytes a pixel, upper row
//                                      first
//        layer_program errors          prints what the odd calls raise

#include "tests/web/eslayer.h"
#include "tests/web/filmstrip.h"
#include "tests/web/oddcalls.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

int write_frames(char const* path, EsLayer const& layer) {
    std::ofstream file(path, std::ios::binary);
    std::string pixels;
    filmstrip::play([&](filmstrip::Frame const&) {
        sf::Image const picture = layer.Read();
        std::size_t const count = std::size_t{filmstrip::width} * filmstrip::height;
        pixels.resize(3 * count);
        for (std::size_t i = 0; i < 3 * count; ++i) {
            pixels[i] = static_cast<char>(picture.getPixelsPtr()[i / 3 * 4 + i % 3]);
        }
        file.write(pixels.data(), static_cast<std::streamsize>(pixels.size()));
    });
    return file.flush() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    EsLayer layer;
    if (!layer.Open(filmstrip::width, filmstrip::height, filmstrip::samples, fixedgl::Lines::Driver)) {
        std::fprintf(stderr, "there is no OpenGL ES 3\n");
        return 1;
    }
    std::string_view const what = argc > 1 ? argv[1] : "";
    if (what == "frames" && argc == 3) return write_frames(argv[2], layer);
    if (what != "errors" || argc != 2) return 2;
    for (std::string const& line : oddcalls::errors()) std::cout << line << '\n';
    return 0;
}
