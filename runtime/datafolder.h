// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Makes the folder that holds the show's "data/" the working directory: the one that already is; else the program's
/// own, the one above it, "../share/hardsilence" from it, or the installed share folder. Everything is then loaded as
/// "data/..." and says so in its messages. The folder is known by the first file that the show loads; another project's
/// "data/" is passed over.
/// @param share       installed share folder; "" for none
/// @param first_file  in "data/"
/// @return "" if it was found; else a line that names the places tried, and the working directory stays as it is
std::string enter_data_folder(std::string const& share, std::string const& first_file);
