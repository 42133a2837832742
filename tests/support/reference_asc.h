// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <iosfwd>
#include <string>
#include <vector>

/// A second reader of mesh files, as plain as possible: std::getline and sscanf, line by line. It is slow and has no
/// limits; the show's reader must give the same results.
namespace reference {

struct Mesh {
    std::string name;
    std::vector<std::array<float, 3>> vertices;
    std::vector<std::array<int, 3>> faces;
    std::vector<std::array<int, 3>> edges;
};

struct File {
    std::vector<Mesh> meshes; ///< the objects that are complete
    std::string fault;        ///< the message that reading ends with; "" for none
};

/// @param stream  at the start of a file
File read_asc(std::istream& stream);
/// @param text  a whole file
File read_asc(std::string const& text);

} // namespace reference
