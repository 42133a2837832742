// SPDX-License-Identifier: MIT
#include "tools/rehearse/filewatch.h"

#include <sys/inotify.h>
#include <unistd.h>

namespace {

constexpr unsigned int events =
    IN_CLOSE_WRITE | IN_MODIFY | IN_MOVED_TO | IN_MOVED_FROM | IN_CREATE | IN_DELETE | IN_DELETE_SELF | IN_MOVE_SELF;

} // namespace

FileWatch::FileWatch(std::vector<std::string> const& folders) : descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    for (std::string const& path : folders) {
        my_folders.push_back({path, inotify_add_watch(descriptor, path.c_str(), events | IN_ONLYDIR)});
    }
}

FileWatch::~FileWatch() {
    if (descriptor >= 0) close(descriptor);
}

bool FileWatch::Changed() {
    WatchAgain();
    Read();
    auto const now = Clock::now();
    if (!changed || (now - last_change < quiet && now - first_change < longest)) return false;
    changed = false;
    return true;
}

void FileWatch::Read() {
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        ssize_t const got = read(descriptor, buffer, sizeof buffer);
        if (got <= 0) return;
        last_change = Clock::now();
        if (!changed) first_change = last_change;
        changed = true;
        for (char const* at = buffer; at < buffer + got;) {
            auto const* const event = reinterpret_cast<inotify_event const*>(at); // NOLINT(*-reinterpret-cast)
            for (Folder& folder : my_folders) {
                if (folder.watch != event->wd || !(event->mask & (IN_IGNORED | IN_MOVE_SELF))) continue;
                if (event->mask & IN_MOVE_SELF) inotify_rm_watch(descriptor, folder.watch);
                folder.watch = -1;
            }
            at += sizeof(inotify_event) + event->len;
        }
    }
}

void FileWatch::WatchAgain() {
    auto const now = Clock::now();
    if (now - last_try < retry) return;
    last_try = now;
    for (Folder& folder : my_folders) {
        if (folder.watch >= 0) continue;
        folder.watch = inotify_add_watch(descriptor, folder.path.c_str(), events | IN_ONLYDIR);
        if (folder.watch < 0) continue;
        last_change = now;
        if (!changed) first_change = now;
        changed = true;
    }
}
