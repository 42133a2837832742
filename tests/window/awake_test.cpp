// SPDX-License-Identifier: MIT
// The screen saver during the show, and the pointer over it.

#include "tests/window/playing.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

using namespace std::chrono_literals;

namespace {

/// A session bus of its own, and on it a desktop's screen saver service.
class Desktop {
public:
    explicit Desktop(bool with_service) : daemon({"dbus-daemon", "--session", "--nofork", "--print-address"}) {
        for (int i = 0; i < 500 && daemon.Output().find('\n') == std::string::npos; ++i) {
            std::this_thread::sleep_for(10ms);
        }
        address = daemon.Output().substr(0, daemon.Output().find('\n'));
        sd_bus_new(&bus);
        sd_bus_set_address(bus, address.c_str());
        sd_bus_set_bus_client(bus, 1);
        if (sd_bus_start(bus) < 0) throw std::runtime_error("no session bus: " + daemon.Error());
        if (!with_service) return;
        sd_bus_add_filter(bus, nullptr, Answer, this);
        sd_bus_request_name(bus, "org.freedesktop.ScreenSaver", 0);
    }
    ~Desktop() { sd_bus_flush_close_unref(bus); }
    Desktop(Desktop const&) = delete;
    Desktop& operator=(Desktop const&) = delete;

    /// Answers what is asked of the service until a condition holds.
    template<typename Condition>
    bool ServeUntil(Condition condition, std::chrono::milliseconds longest = 5s) {
        auto const until = std::chrono::steady_clock::now() + longest;
        while (!condition() && std::chrono::steady_clock::now() < until) {
            if (sd_bus_process(bus, nullptr) == 0) sd_bus_wait(bus, 10000);
        }
        return condition();
    }

    /// Whether who asked for the screen is on the bus still: a service lets go when he leaves.
    bool AskerIsThere() const {
        sd_bus_message* reply = nullptr;
        int there = 0;
        sd_bus_call_method(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
                           nullptr, &reply, "s", asker.c_str());
        sd_bus_message_read(reply, "b", &there);
        sd_bus_message_unref(reply);
        return there != 0;
    }

    std::string address;
    std::vector<std::string> asked;

private:
    static int Answer(sd_bus_message* message, void* self, sd_bus_error*) {
        auto* const desktop = static_cast<Desktop*>(self);
        if (sd_bus_message_is_method_call(message, "org.freedesktop.ScreenSaver", "Inhibit")) {
            char const* who = nullptr;
            char const* why = nullptr;
            sd_bus_message_read(message, "ss", &who, &why);
            desktop->asker = sd_bus_message_get_sender(message);
            desktop->asked.push_back(std::string("Inhibit ") + who + ": " + why);
            return sd_bus_reply_method_return(message, "u", 132U);
        }
        if (sd_bus_message_is_method_call(message, "org.freedesktop.ScreenSaver", "UnInhibit")) {
            std::uint32_t cookie = 0;
            sd_bus_message_read(message, "u", &cookie);
            desktop->asked.push_back("UnInhibit " + std::to_string(cookie));
            return sd_bus_reply_method_return(message, "");
        }
        return 0;
    }

    Process daemon;
    sd_bus* bus = nullptr;
    std::string asker;
};

constexpr char const* inhibited = "Inhibit Hard Silence by Quillon 2012: The show is playing";

class Awake : public testing::Test {
protected:
    void Start(Desktop const& desktop, std::string const& setting = "HARDSILENCE_DESKTOP=1") {
        process = std::make_unique<Process>(
            window::Show::Command(window::small()),
            std::vector{"DISPLAY=" + screen.Name(), "DBUS_SESSION_BUS_ADDRESS=" + desktop.address, setting});
    }
    bool SavedWithin(std::chrono::milliseconds longest) const {
        auto const until = std::chrono::steady_clock::now() + longest;
        while (!screen.Saved() && std::chrono::steady_clock::now() < until) std::this_thread::sleep_for(50ms);
        return screen.Saved();
    }
    XScreen screen;
    std::unique_ptr<Process> process;
};

TEST_F(Awake, ThroughTheDesktopsServiceUntilTheShowEnds) {
    Desktop desktop(true);
    Start(desktop);
    EXPECT_TRUE(desktop.ServeUntil([&] { return !desktop.asked.empty(); }));
    EXPECT_THAT(desktop.asked, testing::ElementsAre(inhibited));
    EXPECT_TRUE(desktop.AskerIsThere());
    process->Signal(SIGTERM);
    EXPECT_TRUE(desktop.ServeUntil([&] { return !process->Running(); }));
    EXPECT_THAT(desktop.asked, testing::ElementsAre(inhibited, "UnInhibit 132"));
}

TEST_F(Awake, ThroughTheDesktopsServiceUntilTheShowCrashes) {
    Desktop desktop(true);
    Start(desktop);
    EXPECT_TRUE(desktop.ServeUntil([&] { return !desktop.asked.empty(); }));
    EXPECT_TRUE(desktop.AskerIsThere());
    process->Signal(SIGKILL);
    EXPECT_TRUE(desktop.ServeUntil([&] { return !desktop.AskerIsThere(); }));
}

TEST_F(Awake, ThroughTheServerWhereThereIsNoServiceUntilTheShowCrashes) {
    Desktop const desktop(false);
    Start(desktop);
    ASSERT_TRUE(screen.FindShow()) << process->Error();
    std::this_thread::sleep_for(500ms);
    screen.SetSaver(1);
    EXPECT_FALSE(SavedWithin(2500ms));
    process->Signal(SIGKILL);
    EXPECT_TRUE(SavedWithin(4s));
}

TEST_F(Awake, NotInTheExactProgram) {
    Desktop desktop(true);
    Start(desktop, "HARDSILENCE_DESKTOP=0");
    ASSERT_TRUE(screen.FindShow()) << process->Error();
    EXPECT_FALSE(desktop.ServeUntil([&] { return !desktop.asked.empty(); }, 1s));
    screen.SetSaver(1);
    EXPECT_TRUE(SavedWithin(4s));
}

TEST(Pointer, IsHiddenOverTheShow) {
    for (bool const friendly : {true, false}) {
        window::Show show(window::small(), {friendly ? "HARDSILENCE_DESKTOP=1" : "HARDSILENCE_DESKTOP="});
        ASSERT_TRUE(show.open) << show.process.Error();
        std::this_thread::sleep_for(200ms);
        EXPECT_EQ(show.screen.PointerIsSeen(), !friendly); // it rests in the middle of the screen, as the window does
    }
}

} // namespace
