// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

/// A mesh file of the show.
struct MeshFile {
    char const* name;                 ///< in "data/"
    std::vector<char const*> objects; ///< that the show takes from it
    bool shattered;                   ///< stored triangle by triangle, which allows fewer of them
};

/// All that the show loads.
std::span<MeshFile const> mesh_files();

/// Looks through all mesh files in "data/" as the show will read them, without OpenGL; takes some milliseconds. What is
/// found here would end the show with an assertion report, or leave something out.
/// @return "", or a line that names the first file that is missing, unreadable, beyond a limit (kore/asclimits.h),
///         faulty or without an object that the show takes from it, and what is wrong with it
std::string check_meshes();

/// The same for the soundtrack, by its first bytes (kore/soundtrackfile.h).
/// @return "", or a line that names the file and what is wrong with it
std::string check_soundtrack(std::string const& path);
