// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <vector>

/// Tells when files of some folders have changed, in whatever way they were saved: in place, truncated and written, or
/// renamed over the old one. A folder that vanishes is watched again when it is back.
class FileWatch {
public:
    /// @param folders  to watch, without those in them
    explicit FileWatch(std::vector<std::string> const& folders);
    ~FileWatch();
    FileWatch(FileWatch const&) = delete;
    FileWatch& operator=(FileWatch const&) = delete;

    /// To be asked once a frame. A change is told once its folder has been quiet for a moment; where it never is, ten
    /// times a second.
    bool Changed();

private:
    using Clock = std::chrono::steady_clock;
    struct Folder {
        std::string path;
        int watch; ///< below 0 while there is none
    };

    void Read();
    void WatchAgain();

    static constexpr std::chrono::milliseconds quiet{20};
    static constexpr std::chrono::milliseconds longest{100};
    static constexpr std::chrono::milliseconds retry{200};

    int descriptor;
    std::vector<Folder> my_folders;
    bool changed = false;
    Clock::time_point first_change;
    Clock::time_point last_change;
    Clock::time_point last_try;
};
