// SPDX-License-Identifier: MIT
#include "runtime/windowmanager.h"

#include "runtime/display.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <algorithm>
#include <memory>
#include <vector>

namespace windowmanager {

namespace {

Display* display() { return display_connection(); }
Window root() { return DefaultRootWindow(display()); }
Atom atom(char const* name) { return XInternAtom(display(), name, False); }

/// @return the values of a property of 32-bit items, 1024 at most; none where it is missing
std::vector<unsigned long> property(Window window, char const* name) {
    constexpr long longest = 1024;
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    int const status = XGetWindowProperty(display(), window, atom(name), 0, longest, False, AnyPropertyType, &type,
                                          &format, &count, &left, &data);
    std::unique_ptr<unsigned char, int (*)(void*)> const owner(data, XFree);
    if (status != Success || format != 32 || !data) return {};
    // Xlib hands out longs, whatever their size.
    auto const* const items = reinterpret_cast<unsigned long const*>(data); // NOLINT(*-reinterpret-cast)
    return {items, items + count};
}

} // namespace

bool can_fill_screen() {
    if (property(root(), "_NET_SUPPORTING_WM_CHECK").empty()) return false;
    auto const supported = property(root(), "_NET_SUPPORTED");
    return std::find(supported.begin(), supported.end(), atom("_NET_WM_STATE_FULLSCREEN")) != supported.end();
}

void fill_screen(unsigned long window, bool fill) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = atom("_NET_WM_STATE");
    event.xclient.format = 32;
    event.xclient.data.l[0] = fill ? 1 : 0;
    event.xclient.data.l[1] = static_cast<long>(atom("_NET_WM_STATE_FULLSCREEN"));
    event.xclient.data.l[3] = 1; // an application asks
    XSendEvent(display(), root(), False, SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XSync(display(), False);
}

void place_in_middle(unsigned long window, int width, int height, Area const& area) {
    Frame const frame = frame_of(window);
    Area const outer = centred(width + frame.left + frame.right, height + frame.top + frame.bottom, area);
    XMoveResizeWindow(display(), window, std::max(area.x, outer.x), std::max(area.y, outer.y),
                      static_cast<unsigned int>(width), static_cast<unsigned int>(height));
    XSync(display(), False);
}

void place_on_top(unsigned long window, Area const& area) {
    XMoveResizeWindow(display(), window, area.x, area.y, static_cast<unsigned int>(area.width),
                      static_cast<unsigned int>(area.height));
    XRaiseWindow(display(), window);
    XSetInputFocus(display(), window, RevertToParent, CurrentTime);
    XSync(display(), False);
}

Area work_area(Area const& desktop) {
    auto const area = property(root(), "_NET_WORKAREA"); // x, y, width, height for each virtual desktop
    if (area.size() < 4) return desktop;
    Area const found{static_cast<int>(area[0]), static_cast<int>(area[1]), static_cast<int>(area[2]),
                     static_cast<int>(area[3])};
    Area const free = shared(found, desktop);
    return free.width > 0 && free.height > 0 ? free : desktop;
}

Frame frame_of(unsigned long window) {
    auto const extents = property(window, "_NET_FRAME_EXTENTS");
    if (extents.size() < 4) return {};
    return {static_cast<int>(extents[0]), static_cast<int>(extents[1]), static_cast<int>(extents[2]),
            static_cast<int>(extents[3])};
}

} // namespace windowmanager
