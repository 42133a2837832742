// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// A stand-in for OpenGL and GLU: defines the entry points that the show uses, logs every call, keeps true matrix
/// stacks with the standard's error rules, and compiles display lists. Link it instead of the driver's library; it
/// needs no window and no context.
namespace gl {

/// Column-major, as OpenGL has it: element (row, column) at [column * 4 + row].
using Matrix = std::array<double, 16>;

/// One glCallList outside of a list's compilation: what was drawn, where and how.
struct Draw {
    unsigned int list;
    std::string name;           ///< see name_list
    Matrix model_view;          ///< in force at the call
    std::array<float, 4> color; ///< current colour, red, green, blue, alpha
    bool inside_primitive;      ///< called between glBegin and glEnd
};

enum class Logging {
    Text, ///< every call as text, and every draw
    Sums, ///< only counts and a checksum: for whole shows
};

/// Forgets everything: log, lists, names, errors; identity matrices of depth 1, model-view mode, white.
void reset(Logging logging = Logging::Text);

/// Forgets what was logged, drawn and counted; lists and matrices stay.
void clear_log();

/// The calls since the last clear, separated by spaces: "PushMatrix Translate(0,5,0) CallList(word) PopMatrix".
/// Numbers are printed by %g, enumerants by name; calls compiled into a list are left out.
std::string calls();

/// The same, one entry per call.
std::vector<std::string> const& call_list();

/// The number of calls, and a checksum of all calls and arguments, bit by bit; in both kinds of logging. A list counts
/// by its content, not by its number.
std::uint64_t call_count();
std::uint64_t checksum();

/// Every glCallList since the last clear, in order (Logging::Text only).
std::vector<Draw> const& draws();

/// The content of a list, as calls() prints it; "" for a name without a list.
std::string list_content(unsigned int list);

/// Shows a list under this name in the log instead of its number.
void name_list(unsigned int list, std::string const& name);

/// How many lists have been compiled.
std::size_t list_count();

/// The top of the model-view stack, the number of matrices on that stack (at least 1), and the top of the projection
/// stack.
Matrix const& model_view();
std::size_t model_view_depth();
Matrix const& projection();

/// Between glBegin and glEnd.
bool inside_primitive();

/// Every error since the last clear, with the call that raised it: "INVALID_OPERATION PushMatrix". Calls that raise one
/// are logged and have no effect, as the standard demands.
std::vector<std::string> const& errors();

/// A point, transformed by a matrix.
std::array<double, 3> transform(Matrix const& matrix, double x, double y, double z);

} // namespace gl
