// SPDX-License-Identifier: MIT
#include "references.h"
#include "studio.h"
#include "tools/files/png.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

int main() {
    fs::current_path(HARDSILENCE_SOURCE_DIR);
    Studio studio;
    if (!studio.Open()) {
        std::cerr << "OpenGL cannot draw off-screen here." << std::endl;
        return 1;
    }
    constexpr char const* folder = "tests/pictures/reference";
    fs::create_directories(folder);
    for (Reference const& reference : references) {
        std::string const error =
            write_png(reference.Path(), studio.Picture(studio.FrameOf(reference.scene, reference.at)));
        if (!error.empty()) {
            std::cerr << "make_references: " << error << std::endl;
            return 1;
        }
    }
    for (fs::directory_entry const& entry : fs::directory_iterator(folder)) {
        auto const is_this = [&](Reference const& reference) { return fs::equivalent(reference.Path(), entry.path()); };
        if (std::ranges::none_of(references, is_this)) fs::remove(entry.path());
    }
    std::cout << std::size(references) << " pictures drawn by " << OffscreenContext::Renderer() << std::endl;
    return 0;
}
