#include "effekt/modellists.h"

#include "kore/report.h"

namespace effect {

void find_or_load(kore::AscModel_ptr const& models, std::string const& model_name, std::string const& file_name,
                  unsigned int& myModel, unsigned int& myWireframe, char const* unit, char const* function) {
    if (models->ModelByName(model_name, myModel) && models->WfByName(model_name, myWireframe)) return;

    // The lines of these four checks are part of their reports.
    if (!file_name.empty()) {
        KORE_ASSERT_AT(models->LoadModel(file_name) >= 0, unit, 23, function);
    } else {
        KORE_ASSERT_AT(models->LoadModel(model_name + ".asc") >= 0, unit, 25, function);
    }
    KORE_ASSERT_AT(models->ModelByName(model_name, myModel), unit, 27, function);
    KORE_ASSERT_AT(models->WfByName(model_name, myWireframe), unit, 28, function);
}

} // namespace effect
