// SPDX-License-Identifier: MIT
#pragma once

#include "tools/film/canvas.h"
#include "tools/film/plan.h"

#include <optional>
#include <span>
#include <string>
#include <sys/types.h>
#include <vector>

/// What each process that draws has to know.
struct RenderTask {
    PictureShape shape = {};
    FilmOptions film = {};
    std::string scene = {}; ///< see plan_film
    FrameRate rate = {};
    Soundtrack music = {};
};

/// Processes that draw the film's pictures in turn: with three of them the first draws pictures 0, 3, 6 and so on. A
/// picture does not depend on which others were drawn, and passing one over costs its logic alone. Processes, and not
/// threads, because the show's library of models and the state of its random numbers are one for a whole process.
///
/// Each draws a few pictures ahead into memory that it shares with this process, so that drawing, reading and encoding
/// overlap.
class Renderers {
public:
    Renderers() = default;
    Renderers(Renderers const&) = delete;
    Renderers& operator=(Renderers const&) = delete;
    ~Renderers(); ///< ends them, each after the picture that it is at

    /// Starts the processes. This process must have no OpenGL context yet.
    /// @return false, after an error line, if the machine refuses
    bool Start(RenderTask const& task, unsigned int jobs);

    /// Waits until the first of them has loaded the show.
    /// @return nothing if it could not, or if there is no such part of the film; it has printed why
    std::optional<FilmPlan> Plan();

    /// @return the next picture, height x width x 3 bytes, valid until the next call; empty if its process has ended
    std::span<std::uint8_t const> Next();

    /// The exit status for the process that ended early; 128 and the signal's number where one ended it.
    int FailedStatus();

    /// Ends all of them at once; safe to call from another thread.
    void Kill();

private:
    struct Job {
        pid_t process = -1;
        int ready = -1;       ///< to read from: a byte for each picture drawn
        int free = -1;        ///< to write to: a byte for each place that may be drawn into
        std::size_t seen = 0; ///< pictures taken from it
    };

    bool MapMemory(std::size_t bytes);
    bool StartJob(RenderTask const& task, unsigned int number, unsigned int jobs);
    std::uint8_t* Place(std::size_t job, std::size_t picture) const;

    std::vector<Job> running;
    std::uint8_t* memory = nullptr;
    std::size_t memory_size = 0;
    std::size_t picture_size = 0;    ///< bytes
    std::size_t current = 0;         ///< the job whose turn it is
    std::optional<std::size_t> lent; ///< the job whose picture was returned last
};
