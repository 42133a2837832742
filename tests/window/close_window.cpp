// Asks a window to close, as a window manager does when its close button is pressed.
// Usage: close_window ID

#include <X11/Xlib.h>
#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
    Display* const display = argc == 2 ? XOpenDisplay(nullptr) : nullptr;
    if (!display) {
        std::cerr << "usage: close_window ID (and DISPLAY set)" << std::endl;
        return 1;
    }
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = std::strtoul(argv[1], nullptr, 0);
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    Status const sent = XSendEvent(display, event.xclient.window, False, NoEventMask, &event);
    XCloseDisplay(display);
    return sent ? 0 : 1;
}
