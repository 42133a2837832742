// SPDX-License-Identifier: MIT
#pragma once

#include "tools/asc/mesh.h"

#include <string>
#include <string_view>
#include <vector>

namespace asc {

/// Something wrong with a file, or with a mesh in it.
struct Fault {
    int line; ///< 1-based line of the file, 0 for a fault of the whole file
    std::string text;
};

/// An object as read, with the 1-based lines of its parts.
struct ReadObject {
    Object object;
    int line = 0;
    std::vector<int> vertex_lines, face_lines;
};

/// A whole file as read. Objects without layout faults are complete and their indices are in range.
struct ReadFile {
    std::vector<ReadObject> objects;
    std::vector<Fault> faults;
};

/// Reads the text of a mesh file strictly: every departure from the layout that `write` produces is a fault.
/// Reading continues after a fault as far as possible, up to a thousand of them; an object with a layout fault is left
/// out of `objects`. Reading ends at kore::max_mesh_objects.
ReadFile parse(std::string_view text);

/// The objects as the text of a mesh file: CRLF line ends, one blank line between objects, none at the end.
/// Numbers are fixed, six decimals at most, without trailing zeros, whatever the locale.
std::string write(std::vector<Object> const& objects);

/// The coordinate, rounded as `write` rounds it.
double rounded(double coordinate);

/// Reads a whole file into `text`. Returns false when it cannot be read (a folder, missing, no permission,
/// larger than kore::max_mesh_file).
bool read_text(std::string const& path, std::string& text);

} // namespace asc
