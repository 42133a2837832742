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

bool display_available() {
    // Never closed: a server whose only client leaves starts anew, and is not to be had meanwhile.
    static Display* display = nullptr;
    if (!display) display = XOpenDisplay(nullptr);
    return display != nullptr;
}

void end_quietly_when_display_is_lost() { XSetIOErrorHandler(display_lost); }
