// SPDX-License-Identifier: MIT
#include "tools/rehearse/overlay.h"

#include <GL/gl.h>
#include <algorithm>
#include <backends/imgui_impl_opengl2.h>
#include <cmath>
#include <filesystem>

namespace {

constexpr char const* plain_font = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr char const* large_font = "/usr/share/fonts/opentype/bebas-neue/BebasNeue-Bold.otf";

/// ImGui's own letters where a font is not installed.
ImFont* load_font(char const* path, float pixels) {
    ImFontAtlas& fonts = *ImGui::GetIO().Fonts;
    std::error_code error;
    if (std::filesystem::exists(path, error)) return fonts.AddFontFromFileTTF(path, std::floor(pixels));
    return fonts.AddFontDefault();
}

} // namespace

Overlay::Overlay() {
    ImGui::CreateContext();
    ImGuiIO& io = ImGui::GetIO();
    io.IniFilename = nullptr; // nothing is remembered
    io.ConfigFlags |= ImGuiConfigFlags_NoMouseCursorChange;
    ImGui::StyleColorsDark();
    ImGui_ImplOpenGL2_Init();
}

Overlay::~Overlay() {
    ImGui_ImplOpenGL2_Shutdown();
    ImGui::DestroyContext();
}

void Overlay::Handle(sf::Event const& event) {
    ImGuiIO& io = ImGui::GetIO();
    switch (event.type) {
    case sf::Event::MouseMoved:
        io.MousePos = ImVec2(static_cast<float>(event.mouseMove.x), static_cast<float>(event.mouseMove.y));
        break;
    case sf::Event::MouseButtonPressed:
    case sf::Event::MouseButtonReleased:
        if (event.mouseButton.button <= sf::Mouse::Middle) {
            io.MousePos = ImVec2(static_cast<float>(event.mouseButton.x), static_cast<float>(event.mouseButton.y));
            io.MouseDown[event.mouseButton.button] = event.type == sf::Event::MouseButtonPressed;
        }
        break;
    case sf::Event::LostFocus:
        std::fill(std::begin(io.MouseDown), std::end(io.MouseDown), false);
        break;
    default:
        break;
    }
}

void Overlay::LoadFonts() {
    ImGuiIO& io = ImGui::GetIO();
    ImGui_ImplOpenGL2_DestroyFontsTexture();
    io.Fonts->Clear();
    plain = load_font(plain_font, 14 * scale);
    small = load_font(plain_font, 10.5f * scale);
    large = load_font(large_font, 46 * scale);
    ImGui_ImplOpenGL2_CreateFontsTexture();
}

void Overlay::Begin(unsigned int width, unsigned int height, float seconds) {
    float const wanted =
        std::clamp(std::min(static_cast<float>(width) / 1280, static_cast<float>(height) / 720), 0.75f, 3.0f);
    if (wanted != scale) {
        scale = wanted;
        LoadFonts();
    }
    ImGuiIO& io = ImGui::GetIO();
    io.DisplaySize = ImVec2(static_cast<float>(width), static_cast<float>(height));
    io.DeltaTime = std::max(seconds, 1e-5f);
    ImGui_ImplOpenGL2_NewFrame();
    ImGui::NewFrame();
}

void Overlay::End() {
    ImGui::Render();
    // What the backend does not put back itself: the current colour, and all that is not its business.
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glDisable(GL_MULTISAMPLE);
    ImGui_ImplOpenGL2_RenderDrawData(ImGui::GetDrawData());
    glPopAttrib();
}
