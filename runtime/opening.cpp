// SPDX-License-Identifier: MIT
#include "runtime/opening.h"

#include "runtime/commandline.h"
#include "runtime/crash.h"
#include "runtime/deadline.h"
#include "runtime/display.h"
#include "runtime/openglcheck.h"
#include "runtime/windowmanager.h"

#include <GL/gl.h>
#include <SFML/Window/Window.hpp>
#include <iostream>
#include <string_view>

namespace {

constexpr int largest_window = 32767;               // pixels: what the X protocol can say
constexpr std::chrono::seconds longest_opening{10}; // a driver may wake a graphics card, on a machine that is busy

} // namespace

bool window_possible() {
    if (resolution_x < 1 || resolution_y < 1 || resolution_x > largest_window) {
        std::cerr << "Cannot open a window of " << resolution_x << "x" << resolution_y << " pixels." << std::endl;
        return false;
    }
    own_display_errors();
    tell_a_lost_display_from_a_crash();
    deadline::set(longest_opening, "The display does not answer.\n", 1);
    if (!display_available()) {
        std::cerr << "Cannot open the display. Is DISPLAY set, and an X server running?" << std::endl;
        return false;
    }
    if (!display_deep_enough()) {
        std::cerr << "This display has too few bits a pixel: the show takes 16, or 24 and more." << std::endl;
        return false;
    }
    if (!display_has_opengl()) {
        std::cerr << "This display offers no OpenGL: its X server lacks the GLX extension." << std::endl;
        return false;
    }
    return true;
}

bool opengl_possible() {
    DriverIsAsked const asked;
    deadline::set(longest_opening, "This display's OpenGL driver does not answer.\n", 1);
    std::string const lacking = what_opengl_lacks();
    if (!lacking.empty()) std::cerr << lacking << std::endl;
    return lacking.empty();
}

std::optional<Area> choose_monitor(Settings const& settings, std::vector<Monitor> const& monitors) {
    Monitor const* const monitor = find_monitor(monitors, settings.monitor);
    if (monitor) return monitor->area;
    std::cerr << "There is no monitor " << settings.monitor << "; the last one is " << monitors.size() << '.'
              << std::endl;
    return std::nullopt;
}

void see_to_full_screen(Settings const& settings) {
    if (video_fullscreen != sf::Style::Fullscreen) return;
    if (!has_monitors() || sf::VideoMode::getFullscreenModes().empty()) {
        std::cerr << "This display offers no full-screen modes; the show plays in a window." << std::endl;
        video_fullscreen = sf::Style::Close;
    } else if (!settings.desktop && !mode_can_be_set(resolution_x, resolution_y)) {
        std::cerr << "This screen cannot be switched to " << resolution_x << 'x' << resolution_y
                  << "; the show plays in a window." << std::endl;
        video_fullscreen = sf::Style::Close;
    }
}

std::optional<DesktopWindow> open_window(sf::Window& window, Settings const& settings, Area const& monitor) {
    sf::ContextSettings const context(video_depth, video_stencil, video_fsaa_level);
    auto const style = settings.desktop ? sf::Uint32{sf::Style::Default} : static_cast<sf::Uint32>(video_fullscreen);
    sf::VideoMode const mode(static_cast<unsigned int>(resolution_x), static_cast<unsigned int>(resolution_y),
                             display_depth());
    window.create(mode, window_title, style, context);
    if (!settings.desktop) {
        if (video_fullscreen == sf::Style::Fullscreen || !windowmanager::can_fill_screen()) return std::nullopt;
        // A window manager that is not told puts it anywhere, the lower third below the screen.
        windowmanager::place_in_middle(window.getSystemHandle(), resolution_x, resolution_y,
                                       windowmanager::work_area(monitor));
        return std::nullopt;
    }
    std::optional<DesktopWindow> desktop(std::in_place, window, monitor, width_given ? resolution_x : 0,
                                         settings.stretch);
    if (video_fullscreen == sf::Style::Fullscreen) desktop->SetFullScreen(true);
    return desktop;
}

void tell_of_slow_drawing() {
    if (video_fsaa_level == 0) return;
    auto const* const renderer = reinterpret_cast<char const*>(glGetString(GL_RENDERER)); // NOLINT(*-reinterpret-cast)
    std::string_view const name = renderer ? renderer : "";
    for (std::string_view const software : {"llvmpipe", "softpipe", "swrast", "SWR"}) {
        if (name.find(software) == std::string_view::npos) continue;
        std::cerr << "No graphics card draws here; -nofsaa doubles the frame rate." << std::endl;
        return;
    }
}
