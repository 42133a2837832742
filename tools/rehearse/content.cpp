// SPDX-License-Identifier: MIT
#include "tools/rehearse/content.h"

#include <utility>
#include <vector>

namespace {

/// @return none where nothing is to be watched
std::vector<std::string> watched(bool any, std::vector<std::string> const& folders) {
    return any ? folders : std::vector<std::string>();
}

} // namespace

Content::Content(std::string build)
    : my_build(std::move(build)),
      kinds{{"models", FileWatch(watched(!my_build.empty(), {"content/models", "content/models/lib"}))},
            {"soundtrack", FileWatch(watched(!my_build.empty(), {"content/soundtrack", "content/soundtrack/orchestra",
                                                                 "content/soundtrack/score"}))}} {}

void Content::Poll() {
    for (Kind& kind : kinds) kind.changed = kind.watch.Changed() || kind.changed;
    if (background.Poll()) {
        progress = background.Succeeded() ? "" : std::string(target) + ": " + background.LastLine();
    } else if (background.Running()) {
        progress = std::string(target) + ": " + background.LastLine();
    }
    if (!background.Running()) Begin();
}

void Content::Begin() {
    for (Kind& kind : kinds) {
        if (!kind.changed) continue;
        kind.changed = false;
        target = kind.target;
        if (background.Start({"cmake", "--build", my_build, "--target", target})) {
            progress = std::string(target) + ": begins";
            return;
        }
        progress = "cmake cannot be started";
    }
}
