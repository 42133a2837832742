// SPDX-License-Identifier: MIT
#include "runtime/display.h"

#include "runtime/streams.h"

#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <array>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace {

constexpr int high_color = 16; // bits of a pixel
constexpr int true_color = 24;

int connection = -1; ///< descriptor

int bits_of_a_pixel() { return DefaultDepth(display_connection(), DefaultScreen(display_connection())); }

int lost(Display*) {
    write_error_line(display_lost_line);
    _exit(1);
}

/// Deliberate: the focus is a wish. The window that is to have it may not be seen yet, or no longer.
int refused(Display* display, XErrorEvent* error) {
    if (error->request_code == X_SetInputFocus) return 0;
    std::array<char, 100> reason{};
    XGetErrorText(display, error->error_code, reason.data(), static_cast<int>(reason.size()));
    write_error_line("The display refused a request: " + std::string(reason.data()) + ".\n");
    _exit(1);
}

} // namespace

void own_display_errors() {
    XSetErrorHandler(refused);
    XSetIOErrorHandler(lost);
}

Display* display_connection() {
    // Never closed: a server whose only client leaves starts anew, and is not to be had meanwhile.
    static Display* display = nullptr;
    if (!display) {
        QuietStandardError const quiet; // the library prints the reasons that a server gives
        display = XOpenDisplay(nullptr);
        if (display) connection = ConnectionNumber(display);
    }
    return display;
}

bool display_available() { return display_connection() != nullptr; }

bool display_is_lost() {
    constexpr int patience = 200; // milliseconds: a server that ends closes one connection after another
    if (connection < 0) return false;
    pollfd end{connection, 0, 0};
    return poll(&end, 1, patience) == 1;
}

bool display_has_opengl() {
    int code = 0;
    int event = 0;
    int error = 0;
    return XQueryExtension(display_connection(), "GLX", &code, &event, &error);
}

unsigned int display_depth() {
    int const depth = bits_of_a_pixel();
    return depth < true_color ? static_cast<unsigned int>(depth) : 32;
}

bool display_deep_enough() { return bits_of_a_pixel() >= true_color || bits_of_a_pixel() == high_color; }
