#include "references.h"
#include "studio.h"

#include <filesystem>
#include <iostream>

int main() {
    std::filesystem::current_path(HARDSILENCE_SOURCE_DIR);
    Studio studio;
    if (!studio.Open()) {
        std::cerr << "OpenGL cannot draw off-screen here." << std::endl;
        return 1;
    }
    std::filesystem::remove_all("tests/pictures/reference");
    std::filesystem::create_directories("tests/pictures/reference");
    for (Reference const& reference : references) {
        if (!studio.Picture(studio.FrameOf(reference.scene, reference.at)).saveToFile(reference.Path())) return 1;
    }
    std::cout << std::size(references) << " pictures drawn by " << OffscreenContext::Renderer() << std::endl;
    return 0;
}
