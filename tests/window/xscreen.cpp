#include "tests/window/xscreen.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace {

constexpr char const* title = "Hard Silence by Quillon 2012";

template<typename Condition>
bool wait_for(Condition condition, std::chrono::milliseconds longest = std::chrono::seconds(10)) {
    auto const until = std::chrono::steady_clock::now() + longest;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= until) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

/// A mapped child of the root window with the show's title; 0 for none.
Window find_window(Display* display) {
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    Window found = 0;
    if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count)) return 0;
    for (unsigned int i = 0; i < count; ++i) {
        char* name = nullptr;
        XWindowAttributes attributes;
        if (XFetchName(display, children[i], &name) && name && std::string(name) == title &&
            XGetWindowAttributes(display, children[i], &attributes) && attributes.map_state == IsViewable) {
            found = children[i];
        }
        if (name) XFree(name);
    }
    if (children) XFree(children);
    return found;
}

} // namespace

XScreen::XScreen(std::vector<std::string> const& options, std::string const& size) {
    std::vector<std::string> command = {"Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", size};
    command.insert(command.end(), options.begin(), options.end());
    server = std::make_unique<Process>(command);
    // The server writes its number once it is ready.
    if (!wait_for([&] { return server->Output().find('\n') != std::string::npos; })) {
        throw std::runtime_error("Xvfb does not start: " + server->Error());
    }
    name = ":" + server->Output().substr(0, server->Output().find('\n'));
    display = XOpenDisplay(name.c_str());
    if (!display) throw std::runtime_error("cannot open display " + name);
}

XScreen::~XScreen() {
    if (display) XCloseDisplay(display);
}

bool XScreen::FindShow() {
    if (!wait_for([&] { return (window = find_window(display)) != 0; })) return false;
    XSetInputFocus(display, window, RevertToParent, CurrentTime);
    XSync(display, False);
    return true;
}

void XScreen::Press(std::string const& key) const {
    Process({"xdotool", "key", key}, {"DISPLAY=" + name}).Wait(std::chrono::seconds(5));
}

void XScreen::Down(std::string const& key) const {
    Process({"xdotool", "keydown", key}, {"DISPLAY=" + name}).Wait(std::chrono::seconds(5));
}

void XScreen::Up(std::string const& key) const {
    Process({"xdotool", "keyup", key}, {"DISPLAY=" + name}).Wait(std::chrono::seconds(5));
}

void XScreen::Hammer(std::vector<std::string> const& strokes) const {
    std::vector<std::string> command = {"xdotool"};
    command.insert(command.end(), strokes.begin(), strokes.end());
    if (Process(command, {"DISPLAY=" + name}).Wait(std::chrono::seconds(60)) != 0) {
        throw std::runtime_error("xdotool fails");
    }
}

void XScreen::AskToClose() const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    XSendEvent(display, window, False, NoEventMask, &event);
    XSync(display, False);
}

void XScreen::Resize(unsigned int width, unsigned int height) const {
    XResizeWindow(display, window, width, height);
    XSync(display, False);
}

unsigned int XScreen::WindowWidth() const {
    XWindowAttributes attributes;
    XGetWindowAttributes(display, window, &attributes);
    return static_cast<unsigned int>(attributes.width);
}

XScreen::Picture XScreen::Look() const {
    XWindowAttributes attributes;
    XGetWindowAttributes(display, window, &attributes);
    Picture picture;
    picture.width = attributes.width;
    picture.height = attributes.height;
    XImage* const image = XGetImage(display, window, 0, 0, static_cast<unsigned int>(picture.width),
                                    static_cast<unsigned int>(picture.height), AllPlanes, ZPixmap);
    if (!image) throw std::runtime_error("no picture of the window");
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            picture.pixels.push_back(static_cast<std::uint32_t>(XGetPixel(image, x, y)) & 0xffffff);
        }
    }
    XDestroyImage(image);
    return picture;
}

void XScreen::Kill() {
    // Close our own side first: Xlib ends a client whose server is gone.
    XCloseDisplay(display);
    display = nullptr;
    server->Signal(SIGKILL);
    server->Wait(std::chrono::seconds(5));
}
