// SPDX-License-Identifier: MIT
#include "effekt/modellists.h"

namespace effect {

void find_or_load(kore::AscModel_ptr const& models, std::string const& model_name, std::string const& file_name,
                  unsigned int& myModel, unsigned int& myWireframe, kore::places::ModelChecks const& checks) {
    if (models->ModelByName(model_name, myModel) && models->WfByName(model_name, myWireframe)) return;

    if (!file_name.empty()) {
        KORE_ASSERT_AT(models->LoadModel(file_name) >= 0, checks.given_file);
    } else {
        KORE_ASSERT_AT(models->LoadModel(model_name + ".asc") >= 0, checks.own_file);
    }
    KORE_ASSERT_AT(models->ModelByName(model_name, myModel), checks.model);
    KORE_ASSERT_AT(models->WfByName(model_name, myWireframe), checks.wireframe);
}

} // namespace effect
