// SPDX-License-Identifier: MIT
#pragma once

#include "web/gl/drawing.h"

#include <utility>
#include <vector>

/// Display lists: OpenGL 1.1, section 5.4.
namespace fixedgl {

struct List;

/// A call of a list: what replays it, and its arguments, each of which a double holds exactly.
struct Command {
    void (*replay)(List const& list, double const* arguments);
    double arguments[9];
};

/// A glBegin, some vertices, a glEnd.
struct Primitive {
    GLenum mode;
    std::size_t first; ///< of its list's corners
    std::size_t count;
    bool refused; ///< whether calls stood in it that are refused there
    Mesh mesh;    ///< where it is long
};

struct List {
    std::vector<Command> commands;
    std::vector<Primitive> primitives;
    std::vector<Corner> corners;
    bool reserved = false; ///< by glGenLists

    void Replay() const {
        for (Command const& command : commands) command.replay(*this, command.arguments);
    }
};

/// Writes a list, call by call.
class Compiler {
public:
    void Begin(GLenum mode);
    void Vertex(float x, float y, float z);
    void End();

    /// Any other call.
    /// @param everywhere  whether it is also allowed between glBegin and glEnd
    void Add(Command const& command, bool everywhere);

    /// Ends the list; the next one may begin.
    /// @return what was written
    List Finish();

private:
    void Settle();

    /// What has not become commands yet: vertices, and the glBegin before them if that is known.
    struct Pending {
        bool begun = false;
        GLenum mode = 0;
        std::size_t first = 0;
        bool refused = false;
    };

    List list; ///< its room is used again for the next one
    Pending pending;
};

template<auto call, typename... Arguments, std::size_t... i>
void replay(double const* arguments, void (*)(Arguments...), std::index_sequence<i...>) {
    call(static_cast<Arguments>(arguments[i])...);
}

/// The command that issues a call again.
template<auto call, typename... Arguments>
Command command(Arguments... arguments) {
    auto const again = [](List const&, double const* kept) {
        replay<call>(kept, call, std::index_sequence_for<Arguments...>());
    };
    return {again, {static_cast<double>(arguments)...}};
}

} // namespace fixedgl
