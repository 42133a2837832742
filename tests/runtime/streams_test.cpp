// SPDX-License-Identifier: MIT
#include "runtime/streams.h"

#include "tests/support/command.h"

#include <SFML/System/Err.hpp>
#include <array>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/resource.h>
#include <unistd.h>

namespace {

TEST(StandardStreams, ThatAreClosedBecomeDevNullAndTheOthersStay) {
    for (int closed = 0; closed < 8; ++closed) {
        SCOPED_TRACE(closed);
        auto const outcome = support::run_in_child([closed] {
            for (int stream = 0; stream < 3; ++stream) {
                if (closed >> stream & 1) close(stream);
            }
            open_missing_streams();
            for (int stream = 0; stream < 3; ++stream) {
                if (fcntl(stream, F_GETFD) < 0) return 1;
            }
            int const next = open("/dev/null", O_RDONLY);
            return next > STDERR_FILENO && dprintf(STDERR_FILENO, "heard") > 0 ? 0 : 2;
        });
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.error, closed & 4 ? "" : "heard");
    }
}

/// A pipe whose reader reads when it is told to.
class Pipe {
public:
    Pipe() { EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0); }
    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }
    Pipe(Pipe const&) = delete;
    Pipe& operator=(Pipe const&) = delete;

    std::string Read() const {
        std::string text(1 << 20, '\0');
        ssize_t const got = read(ends[0], text.data(), text.size());
        return text.substr(0, got < 0 ? 0 : static_cast<std::size_t>(got));
    }
    std::array<int, 2> ends{};
};

TEST(DroppingBuffer, WritesLinesThatThereIsRoomForAndDropsTheRest) {
    Pipe const pipe;
    DroppingBuffer buffer(pipe.ends[1]);
    buffer.SetPatience(0);
    std::ostream stream(&buffer);
    stream << "one " << 1 << std::endl;
    EXPECT_EQ(pipe.Read(), "one 1\n");
    int lines = 0;
    while (stream << std::string(999, 'x') << std::endl) ++lines;
    EXPECT_GT(lines, 30);
    EXPECT_LT(lines, 100);
    stream.clear();
    stream << "lost" << std::endl;
    EXPECT_FALSE(stream);
    EXPECT_EQ(pipe.Read().find("lost"), std::string::npos);
    stream.clear();
    stream << "again" << std::endl;
    EXPECT_EQ(pipe.Read(), "again\n");
}

TEST(DroppingBuffer, WritesMoreThanAPipeTakesAtOnce) {
    Pipe const pipe;
    std::string const text(5 * PIPE_BUF + 7, 'y');
    EXPECT_TRUE(write_what_fits(pipe.ends[1], text, 0));
    EXPECT_EQ(pipe.Read(), text);
    EXPECT_FALSE(write_what_fits(pipe.ends[1], std::string(1 << 20, 'z'), 0));
}

TEST(LibraryWords, AreOneLineOnceTheyAreReleased) {
    auto const outcome = support::run_in_child([] {
        LibraryWords words;
        sf::err() << "first " << 1;
        sf::err() << std::endl << "second\nthird\n";
        std::cerr << "own\n";
        words.Release();
        sf::err() << "fourth" << std::endl;
        return 0;
    });
    EXPECT_EQ(outcome.error, "own\nfirst 1\n");
}

TEST(LibraryWords, AreNotHeardWhereNothingReleasesThem) {
    auto const outcome = support::run_in_child([] {
        LibraryWords const words;
        sf::err() << "first" << std::endl;
        return 0;
    });
    EXPECT_EQ(outcome.error, "");
}

TEST(QuietStandardError, IsHeardAgainAfterwards) {
    auto const outcome = support::run_in_child([] {
        {
            QuietStandardError const quiet;
            std::fputs("lost ", stderr);
            write_error_line("our own ");
        }
        std::fputs("heard", stderr);
        return 0;
    });
    EXPECT_EQ(outcome.error, "our own heard");
}

TEST(QuietStandardError, LeavesItAloneWhereNoFileCanBeOpened) {
    auto const outcome = support::run_in_child([] {
        rlimit const none{3, 3};
        setrlimit(RLIMIT_NOFILE, &none);
        { QuietStandardError const quiet; }
        std::fputs("heard", stderr);
        return 0;
    });
    EXPECT_EQ(outcome.error, "heard");
}

} // namespace
