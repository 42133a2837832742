#pragma once

#include <string>

/// Makes the folder that holds "data/" the working directory: the one that already is, else the program's own, else the
/// installed share folder. Everything is then loaded as "data/..." and says so in its messages. Where there is none the
/// working directory stays as it is.
/// @param share  installed share folder; "" for none
/// @return false if no "data/" was found
bool enter_data_folder(std::string const& share);
