// SPDX-License-Identifier: MIT
#include "tests/window/xscreen.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>
#include <X11/extensions/scrnsaver.h>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
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

bool is_show(Display* display, Window window) {
    char* name = nullptr;
    XWindowAttributes attributes;
    bool const found = XFetchName(display, window, &name) && name && std::string_view(name) == title &&
                       XGetWindowAttributes(display, window, &attributes) && attributes.map_state == IsViewable;
    if (name) XFree(name);
    return found;
}

/// The window under another, at any depth, that is seen and has the show's title; 0 for none.
Window find_window(Display* display, Window from) {
    if (is_show(display, from)) return from;
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    Window found = 0;
    if (!XQueryTree(display, from, &root, &parent, &children, &count)) return 0;
    for (unsigned int i = 0; i < count && !found; ++i) found = find_window(display, children[i]);
    if (children) XFree(children);
    return found;
}

/// Windows of other clients may be gone before they are looked at.
int keep_calm(Display*, XErrorEvent*) { return 0; }

std::string const switched_server = R"(
Section "Device"
  Identifier "device"
  Driver "dummy"
  VideoRam 256000
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5.0-1000.0
  VertRefresh 5.0-200.0
EndSection
Section "Screen"
  Identifier "screen"
  Device "device"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "1920x1440"
  EndSubSection
EndSection
)";

/// The eight bits of a color that a pixel of any depth has under this mask.
std::uint32_t color_of(unsigned long pixel, unsigned long mask) {
    return mask == 0 ? 0 : static_cast<std::uint32_t>((pixel & mask) * 255 / mask);
}

} // namespace

XScreen::XScreen(std::vector<std::string> const& options, std::string const& size) {
    std::vector<std::string> command = {"Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0", size};
    command.insert(command.end(), options.begin(), options.end());
    Start(command);
}

XScreen::XScreen(Switched const& start) {
    Start({"Xorg", "-displayfd", "1", "-nolisten", "tcp", "-noreset", "-config",
           folder.Write("xorg.conf", switched_server), "-logfile", folder.Path("log")});
    Randr({"--output", "DUMMY0", "--mode", start.mode});
}

XScreen::XScreen(Wayland const& desktop) {
    server = std::make_unique<Process>(std::vector<std::string>{"weston", "--backend=headless-backend.so",
                                                                "--use-pixman", "--xwayland", "--idle-time=0",
                                                                "--width=" + std::to_string(desktop.width),
                                                                "--height=" + std::to_string(desktop.height)},
                                       std::vector{"XDG_RUNTIME_DIR=" + folder.Path(""), std::string("DISPLAY")});
    std::string const told = "xserver listening on display ";
    if (!wait_for([&] { return server->Error().find('\n', server->Error().find(told)) != std::string::npos; })) {
        throw std::runtime_error("weston does not start: " + server->Error());
    }
    std::string const log = server->Error();
    auto const at = log.find(told) + told.size();
    name = log.substr(at, log.find('\n', at) - at);
    Connect();
}

void XScreen::Start(std::vector<std::string> const& command) {
    server = std::make_unique<Process>(command);
    // The server writes its number once it is ready.
    if (!wait_for([&] { return server->Output().find('\n') != std::string::npos; })) {
        throw std::runtime_error(command[0] + " does not start: " + server->Error());
    }
    name = ":" + server->Output().substr(0, server->Output().find('\n'));
    Connect();
}

void XScreen::Connect() {
    display = XOpenDisplay(name.c_str());
    if (!display) throw std::runtime_error("cannot open display " + name);
    XSetErrorHandler(keep_calm);
}

void XScreen::Manage() {
    manager = std::make_unique<Process>(std::vector<std::string>{"openbox"}, std::vector{"DISPLAY=" + name});
    Atom const check = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
    bool const there = wait_for([&] {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        XGetWindowProperty(display, DefaultRootWindow(display), check, 0, 1, False, AnyPropertyType, &type, &format,
                           &count, &left, &data);
        if (data) XFree(data);
        return count == 1;
    });
    if (!there) throw std::runtime_error("openbox does not start: " + manager->Error());
    // It says that it is there before it looks for windows; one that is mapped meanwhile can be lost.
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
}

void XScreen::Randr(std::vector<std::string> const& arguments) const {
    std::vector<std::string> command = {"xrandr"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    Process process(command, {"DISPLAY=" + name});
    if (process.Wait(std::chrono::seconds(5)) != 0) throw std::runtime_error("xrandr: " + process.Error());
}

XScreen::~XScreen() {
    if (display) XCloseDisplay(display);
    // Asked to end, a server takes its socket and its own clients with it.
    if (!server || !server->Running()) return;
    server->Signal(SIGTERM);
    server->Wait(std::chrono::seconds(2));
}

bool XScreen::FindShow() {
    if (!wait_for([&] { return (window = find_window(display, DefaultRootWindow(display))) != 0; })) return false;
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

void XScreen::Point(int x, int y) const {
    Area const place = WindowPlace();
    Hammer({"mousemove", std::to_string(place.x + x), std::to_string(place.y + y)});
}

void XScreen::Click(int button) const { Hammer({"click", std::to_string(button)}); }

void XScreen::ButtonDown(int button) const { Hammer({"mousedown", std::to_string(button)}); }

void XScreen::ButtonUp(int button) const { Hammer({"mouseup", std::to_string(button)}); }

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

Area XScreen::WindowPlace() const {
    XWindowAttributes attributes;
    XGetWindowAttributes(display, window, &attributes);
    Area place{0, 0, attributes.width, attributes.height};
    Window child = 0;
    XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &place.x, &place.y, &child);
    return place;
}

XScreen::Picture XScreen::Look() const {
    XWindowAttributes attributes;
    XGetWindowAttributes(display, window, &attributes);
    return Read(window, attributes.width, attributes.height);
}

XScreen::Picture XScreen::LookAtAll() const {
    XWindowAttributes attributes;
    XGetWindowAttributes(display, DefaultRootWindow(display), &attributes);
    return Read(DefaultRootWindow(display), attributes.width, attributes.height);
}

XScreen::Picture XScreen::Read(unsigned long drawable, int width, int height) const {
    Picture picture;
    picture.width = width;
    picture.height = height;
    XImage* const image = XGetImage(display, drawable, 0, 0, static_cast<unsigned int>(width),
                                    static_cast<unsigned int>(height), AllPlanes, ZPixmap);
    if (!image) throw std::runtime_error("no picture of the window");
    Visual const* const visual = DefaultVisual(display, DefaultScreen(display));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            unsigned long const pixel = XGetPixel(image, x, y);
            picture.pixels.push_back(color_of(pixel, visual->red_mask) << 16U |
                                     color_of(pixel, visual->green_mask) << 8U | color_of(pixel, visual->blue_mask));
        }
    }
    XDestroyImage(image);
    return picture;
}

void XScreen::SetSaver(int seconds) const {
    XSetScreenSaver(display, seconds, 0, DontPreferBlanking, DefaultExposures);
    XSync(display, False);
}

bool XScreen::Saved() const {
    XScreenSaverInfo info;
    return XScreenSaverQueryInfo(display, DefaultRootWindow(display), &info) && info.state == ScreenSaverOn;
}

bool XScreen::PointerIsSeen() const {
    int event = 0;
    int error = 0;
    if (!XFixesQueryExtension(display, &event, &error)) throw std::runtime_error("no XFixes");
    XFixesCursorImage* const image = XFixesGetCursorImage(display);
    bool seen = false;
    for (int i = 0; i < image->width * image->height; ++i) seen = seen || image->pixels[i] >> 24U != 0;
    XFree(image);
    return seen;
}

void XScreen::Kill() {
    // Close our own side first: Xlib ends a client whose server is gone.
    XCloseDisplay(display);
    display = nullptr;
    server->Signal(SIGKILL);
    server->Wait(std::chrono::seconds(5));
}
