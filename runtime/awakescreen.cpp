// SPDX-License-Identifier: MIT
#include "runtime/awakescreen.h"

#include "runtime/commandline.h"
#include "runtime/display.h"

#include <X11/Xlib.h>
#include <X11/extensions/scrnsaver.h>
#include <chrono>
#include <systemd/sd-bus.h>

namespace {

constexpr char const* name = "org.freedesktop.ScreenSaver"; // of the service, and of its interface
constexpr char const* path = "/org/freedesktop/ScreenSaver";
constexpr std::uint64_t patience = 500000; // microseconds that the service may take: the show waits for it

void suspend_saver(bool suspend) {
    Display* const display = display_connection();
    int event = 0;
    int error = 0;
    if (!XScreenSaverQueryExtension(display, &event, &error)) return;
    XScreenSaverSuspend(display, suspend ? True : False);
    XFlush(display);
}

/// A bus that takes connections and never answers would be waited for much longer than a call.
bool gets_ready(sd_bus* bus) {
    using std::chrono::steady_clock;
    auto const until = steady_clock::now() + std::chrono::microseconds(patience);
    while (sd_bus_is_ready(bus) == 0) {
        int const done = sd_bus_process(bus, nullptr);
        if (done < 0 || steady_clock::now() > until) return false;
        if (done == 0 && sd_bus_wait(bus, patience / 10) < 0) return false;
    }
    return sd_bus_is_ready(bus) > 0;
}

} // namespace

void AwakeScreen::CloseBus::operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }

AwakeScreen::AwakeScreen() {
    if (AskService()) return;
    service.reset();
    suspend_saver(true);
}

AwakeScreen::~AwakeScreen() {
    if (service) {
        sd_bus_call_method(service.get(), name, path, name, "UnInhibit", nullptr, nullptr, "u", cookie);
    } else {
        suspend_saver(false);
    }
}

bool AwakeScreen::AskService() {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0) return false;
    service.reset(bus);
    sd_bus_set_method_call_timeout(bus, patience);
    if (!gets_ready(bus)) return false;
    sd_bus_message* reply = nullptr;
    bool const granted = sd_bus_call_method(bus, name, path, name, "Inhibit", nullptr, &reply, "ss", window_title,
                                            "The show is playing") >= 0 &&
                         sd_bus_message_read(reply, "u", &cookie) >= 0;
    sd_bus_message_unref(reply);
    return granted;
}
