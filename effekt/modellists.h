// SPDX-License-Identifier: MIT
#pragma once

#include "kore/ascmodel.h"
#include "kore/reportedplaces.h"

#include <string>

namespace effect {

/// Finds the two display lists of a model in the library, and loads its file if the library does not hold both.
/// A file that cannot be loaded, or does not hold the model, ends the program with an assertion report.
/// @param model_name   object name
/// @param file_name    file to load; "" stands for the object name with ".asc"
/// @param myModel      receives the solid list
/// @param myWireframe  receives the wireframe list
/// @param checks       the places that the report names
void find_or_load(kore::AscModel_ptr const& models, std::string const& model_name, std::string const& file_name,
                  unsigned int& myModel, unsigned int& myWireframe, kore::places::ModelChecks const& checks);

} // namespace effect
