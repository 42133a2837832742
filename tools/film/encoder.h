// SPDX-License-Identifier: MIT
#pragma once

#include "tools/files/newfile.h"
#include "tools/film/command.h"
#include "tools/film/sinks.h"

#include <mutex>
#include <optional>
#include <sys/types.h>

/// A film, made by an `ffmpeg` process that is fed bare pixels through a pipe. A process, and not FFmpeg's libraries:
/// its command line has been stable for many years where the libraries' interface changes with every release, whatever
/// the user's ffmpeg can encode can be asked for, and encoding takes its own share of the processor's cores.
///
/// The film takes its name when it is whole, see NewFile.
class Encoder final : public FrameSink {
public:
    Encoder() = default;
    Encoder(Encoder const&) = delete;
    Encoder& operator=(Encoder const&) = delete;
    ~Encoder() override; ///< ends ffmpeg and removes what is not finished

    /// Starts ffmpeg.
    /// @param task  its file is where the film goes in the end
    /// @return "", or a line that tells why it could not
    std::string Start(EncoderTask task);

    std::string Write(std::span<std::uint8_t const> pixels) override;

    /// Waits for ffmpeg to finish the file, and gives it its name.
    std::string Finish() override;

    /// Ends ffmpeg at once and removes what it has written; safe to call from another thread.
    void Abandon();

private:
    std::string Spawn(std::vector<std::string> const& command);
    std::string WaitFor();
    std::string LastWords() const;

    std::mutex guard; ///< of what Abandon touches
    std::optional<NewFile> file;
    pid_t process = -1;
    int pipe = -1;   ///< to its standard input
    int errors = -1; ///< a nameless file, its standard error
};
