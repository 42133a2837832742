// SPDX-License-Identifier: MIT
#include "runtime/monitors.h"

#include "runtime/display.h"

#include <SFML/Window/VideoMode.hpp>
#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>
#include <algorithm>
#include <iostream>
#include <tuple>

namespace {

Area whole_desktop() {
    Display* const display = display_connection();
    XWindowAttributes root;
    XGetWindowAttributes(display, DefaultRootWindow(display), &root);
    return {0, 0, root.width, root.height};
}

bool randr_is_at_least(int wanted_major, int wanted_minor) {
    Display* const display = display_connection();
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    return XRRQueryExtension(display, &event, &error) && XRRQueryVersion(display, &major, &minor) &&
           (major > wanted_major || (major == wanted_major && minor >= wanted_minor));
}

std::string name_of(Atom atom) {
    char* const name = XGetAtomName(display_connection(), atom);
    std::string text = name ? name : "";
    if (name) XFree(name);
    return text;
}

} // namespace

bool has_monitors() { return randr_is_at_least(1, 2); }

std::vector<Monitor> find_monitors() {
    std::vector<Monitor> monitors;
    int count = 0;
    XRRMonitorInfo* const found =
        randr_is_at_least(1, 5)
            ? XRRGetMonitors(display_connection(), DefaultRootWindow(display_connection()), True, &count)
            : nullptr;
    for (int i = 0; i < count; ++i) {
        XRRMonitorInfo const& m = found[i];
        monitors.push_back({name_of(m.name), {m.x, m.y, m.width, m.height}, m.primary != 0});
    }
    if (found) XRRFreeMonitors(found);
    std::sort(monitors.begin(), monitors.end(), [](Monitor const& a, Monitor const& b) {
        return std::tie(a.area.x, a.area.y) < std::tie(b.area.x, b.area.y);
    });
    if (monitors.empty()) monitors.push_back({"the whole desktop", whole_desktop(), true});
    return monitors;
}

Monitor const* find_monitor(std::vector<Monitor> const& monitors, int number) {
    if (number < 0 || number > static_cast<int>(monitors.size())) return nullptr;
    if (number > 0) return &monitors[static_cast<std::size_t>(number) - 1];
    for (Monitor const& monitor : monitors) {
        if (monitor.primary) return &monitor;
    }
    return monitors.data();
}

void print_monitors(std::vector<Monitor> const& monitors) {
    int number = 0;
    for (auto const& [name, area, primary] : monitors) {
        std::cout << ++number << "  " << area.width << 'x' << area.height << " at " << area.x << ',' << area.y << "  "
                  << name << (primary ? ", primary" : "") << '\n';
    }
    std::cout << std::flush;
}

bool mode_can_be_set(int width, int height) {
    sf::VideoMode const mode(static_cast<unsigned int>(width), static_cast<unsigned int>(height), display_depth());
    Area const desktop = whole_desktop();
    return mode.isValid() && width <= desktop.width && height <= desktop.height;
}
