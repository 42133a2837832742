// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <streambuf>
#include <string>
#include <string_view>

/// Opens /dev/null for each of the standard streams that is closed, before a connection to a server gets its number.
void open_missing_streams();

/// Writes what a descriptor takes; safe in signal handlers.
/// @param patience  milliseconds to wait for it to take more
/// @return false if some of the text was dropped
bool write_what_fits(int descriptor, std::string_view text, int patience);

/// Writes a line on standard error, which may be kept quiet meanwhile, if that takes it. Safe in signal handlers.
void write_error_line(std::string_view line);

/// Writes to a descriptor what it takes, and drops what it does not: nobody has to read what the show prints, and a
/// full pipe must not hold the picture.
class DroppingBuffer final : public std::streambuf {
public:
    explicit DroppingBuffer(int descriptor) : my_descriptor(descriptor) {}

    /// @param milliseconds  to wait for the descriptor to take more
    void SetPatience(int milliseconds) { patience = milliseconds; }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(char const* text, std::streamsize size) override;
    int sync() override; ///< -1 where something was dropped, as with other streams that fail

private:
    int my_descriptor;
    int patience = 1000;
    std::string waiting;
};

/// Has standard output and standard error drop what they do not take, while this lives. A pipe that loses its reader
/// ends nothing, from then on.
class DroppingStreams {
public:
    DroppingStreams();
    ~DroppingStreams();
    DroppingStreams(DroppingStreams const&) = delete;
    DroppingStreams& operator=(DroppingStreams const&) = delete;

    /// From now on nothing waits for a reader.
    void BeImpatient();

private:
    DroppingBuffer output;
    DroppingBuffer error;
    std::streambuf* output_before;
    std::streambuf* error_before;
};

/// Keeps what SFML says to one line on standard error, from whatever thread it comes. The line is held back at first.
class LibraryWords final : public std::streambuf {
public:
    LibraryWords();
    ~LibraryWords() override;
    LibraryWords(LibraryWords const&) = delete;
    LibraryWords& operator=(LibraryWords const&) = delete;

    /// Prints the line, now or once it is complete.
    void Release();

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(char const* text, std::streamsize size) override;

private:
    void Take(char const* text, std::size_t size);
    void PrintOnce() const;

    std::mutex mutex;
    std::string line;
    bool complete = false;
    bool released = false;
    std::streambuf* before;
};

/// Discards standard error during its lifetime: what libraries say there while they are asked for something. Nothing
/// else may print there meanwhile.
class QuietStandardError {
public:
    QuietStandardError();
    ~QuietStandardError();
    QuietStandardError(QuietStandardError const&) = delete;
    QuietStandardError& operator=(QuietStandardError const&) = delete;

private:
    int saved;
};
