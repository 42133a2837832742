// SPDX-License-Identifier: MIT
#include "web/gl/lists.h"

#include "web/gl/state.h"

namespace fixedgl {

namespace {

/// From here on a list's primitive is kept by the driver: a call of its own is cheaper than transforming it here.
constexpr std::size_t long_elements = 33;

void issue_vertices(List const& list, std::size_t first, std::size_t count) {
    for (std::size_t i = first; i < first + count; ++i) {
        Corner const& corner = list.corners[i];
        glVertex3f(corner.x, corner.y, corner.z);
    }
}

void vertices(List const& list, double const* arguments) {
    issue_vertices(list, static_cast<std::size_t>(arguments[0]), static_cast<std::size_t>(arguments[1]));
}

void refuse(List const&, double const*) { raise(GL_INVALID_OPERATION); }

void primitive(List const& list, double const* arguments) {
    Primitive const& p = list.primitives[static_cast<std::size_t>(arguments[0])];
    if (p.refused) raise(GL_INVALID_OPERATION);
    if (state.inside) {
        // Its glBegin is refused, its vertices join the open primitive, its glEnd closes that.
        raise(GL_INVALID_OPERATION);
        issue_vertices(list, p.first, p.count);
        glEnd();
    } else if (p.mesh.array) {
        state.drawing.Draw(p.mesh, state.Place(), state.color);
    } else {
        state.drawing.Put(p.mode, {list.corners.data() + p.first, p.count}, state.Place(), &state.color);
    }
}

} // namespace

void Compiler::Begin(GLenum mode) {
    if (pending.begun) {
        pending.refused = true;
        return;
    }
    Settle();
    pending = {true, mode, list.corners.size(), false};
}

void Compiler::Vertex(float x, float y, float z) { list.corners.push_back({x, y, z, 0}); }

void Compiler::End() {
    if (!pending.begun) {
        Settle();
        list.commands.push_back(command<glEnd>());
        return;
    }
    std::size_t const count = list.corners.size() - pending.first;
    Primitive p{pending.mode, pending.first, count, pending.refused, {}};
    if (elements_of(p.mode, count) >= long_elements) {
        std::span<Corner const> const corners(list.corners.data() + p.first, count);
        p.mesh = state.shelf.Take(p.mode, corners);
        if (!p.mesh.array) p.mesh = state.drawing.Keep(p.mode, corners);
    }
    list.commands.push_back({primitive, {static_cast<double>(list.primitives.size())}});
    list.primitives.push_back(p);
    pending = {false, 0, list.corners.size(), false};
}

void Compiler::Add(Command const& command, bool everywhere) {
    if (pending.begun && !everywhere) {
        pending.refused = true; // and that is all that it does
        return;
    }
    Settle();
    list.commands.push_back(command);
}

void Compiler::Settle() {
    if (pending.begun) list.commands.push_back(command<glBegin>(pending.mode));
    if (pending.refused) list.commands.push_back({refuse, {}});
    std::size_t const count = list.corners.size() - pending.first;
    if (count > 0)
        list.commands.push_back({vertices, {static_cast<double>(pending.first), static_cast<double>(count)}});
    pending = {false, 0, list.corners.size(), false};
}

List Compiler::Finish() {
    Settle();
    List finished = list; // of the right size
    list.commands.clear();
    list.primitives.clear();
    list.corners.clear();
    pending = {};
    return finished;
}

} // namespace fixedgl
