// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

struct sd_bus;

/// Holds off the screen saver and the blanking of the screen while it lives: by the desktop's service
/// org.freedesktop.ScreenSaver where there is one, else by the X server. Both let go by themselves when the program
/// crashes.
class AwakeScreen {
public:
    AwakeScreen();
    ~AwakeScreen();
    AwakeScreen(AwakeScreen const&) = delete;
    AwakeScreen& operator=(AwakeScreen const&) = delete;

private:
    bool AskService();

    struct CloseBus {
        void operator()(sd_bus* bus) const;
    };
    std::unique_ptr<sd_bus, CloseBus> service; ///< empty where the X server does it
    std::uint32_t cookie = 0;                  ///< the service's name for our request
};
