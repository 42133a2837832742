// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/matrix/commands.h"
#include "tests/support/temp.h"

#include <functional>
#include <string>
#include <vector>

/// What the groups about the tools share.
namespace faults {

inline std::string const recorder = program("hardsilence-record");
inline std::string const asc = program("tools/asc/asc");
inline std::string const place = program("tools/files/place");

/// What is done to a path before a program meets it.
struct Deed {
    char const* name;
    std::function<void(std::string const& path)> act; ///< nothing is there yet
    std::string says;                                 ///< in the line about it
};

// The objects that can stand where a file should.
void make_folder(std::string const& path);
void make_fifo(std::string const& path);
void make_socket(std::string const& path);
void make_link_to(std::string const& target, std::string const& path);
void make_hole(std::string const& path); ///< 4 GB of noughts
void make_file(std::string const& path, std::string const& bytes);

/// A model file, a mesh file made of it, and what the tools read besides.
std::string const& square_obj();
std::string const& square_asc();

/// Options of the recorder for a small picture.
std::vector<std::string> small_picture(std::vector<std::string> const& more);

/// The command in a new folder that holds square.obj, a.asc and b.asc.
/// @param prepare  what else is done there
/// @param look     "" or what is wrong afterwards
std::string in_folder(std::function<void(std::string const& folder)> const& prepare, Command command, End const& end,
                      std::function<std::string(std::string const& folder)> const& look = {});

} // namespace faults
