#include "runtime/display.h"

#include <X11/Xlib.h>
#include <unistd.h>

namespace {

int display_lost(Display*) {
    constexpr char message[] = "The display is lost.\n";
    [[maybe_unused]] ssize_t const written = write(STDERR_FILENO, message, sizeof message - 1);
    _exit(1);
}

} // namespace

Display* display_connection() {
    // Never closed: a server whose only client leaves starts anew, and is not to be had meanwhile.
    static Display* display = nullptr;
    if (!display) display = XOpenDisplay(nullptr);
    return display;
}

bool display_available() { return display_connection() != nullptr; }

bool display_has_opengl() {
    int code = 0;
    int event = 0;
    int error = 0;
    return XQueryExtension(display_connection(), "GLX", &code, &event, &error);
}

unsigned int display_depth() {
    constexpr int true_color = 24;
    int const depth = DefaultDepth(display_connection(), DefaultScreen(display_connection()));
    return depth < true_color ? static_cast<unsigned int>(depth) : 32;
}

void end_quietly_when_display_is_lost() { XSetIOErrorHandler(display_lost); }
