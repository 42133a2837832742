// SPDX-License-Identifier: MIT
#include "runtime/desktopwindow.h"

#include "runtime/windowmanager.h"

#include <SFML/Window/Window.hpp>

Area window_picture(int width, Area const& room) {
    Area const largest = fitted(room);
    int const wanted = width > 0 ? width : largest.width * 3 / 4;
    int const chosen = std::max(4, std::min(wanted, largest.width) / 4 * 4);
    return centred(chosen, chosen * 3 / 4, room);
}

DesktopWindow::DesktopWindow(sf::Window& window, Area const& monitor, int width, bool stretch)
    : my_window(window), my_monitor(monitor), my_width(width), picture(stretch) {
    my_window.setMouseCursorVisible(false);
    StandInTheMiddle();
    sf::Vector2u const size = my_window.getSize();
    Resized(size.x, size.y);
}

void DesktopWindow::StandInTheMiddle() const {
    auto const handle = my_window.getSystemHandle();
    windowmanager::Frame const frame = windowmanager::frame_of(handle);
    Area const free = windowmanager::work_area(my_monitor);
    Area const room{free.x, free.y, std::max(1, free.width - frame.left - frame.right),
                    std::max(1, free.height - frame.top - frame.bottom)};
    Area const place = window_picture(my_width, room);
    if (windowmanager::can_fill_screen()) {
        windowmanager::place_in_middle(handle, place.width, place.height, free);
    } else {
        windowmanager::place_on_top(handle, place);
    }
}

void DesktopWindow::SetFullScreen(bool full) {
    full_screen = full;
    if (windowmanager::can_fill_screen()) {
        windowmanager::fill_screen(my_window.getSystemHandle(), full);
    } else if (full) {
        windowmanager::place_on_top(my_window.getSystemHandle(), my_monitor);
    } else {
        StandInTheMiddle();
    }
}

void DesktopWindow::Resized(unsigned int width, unsigned int height) {
    picture.Resize(static_cast<int>(width), static_cast<int>(height));
}
