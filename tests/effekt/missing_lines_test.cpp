// SPDX-License-Identifier: MIT
// The check for a model's lines. The library stores faces and lines together, so the check fails only if the library
// loses its lines: this program is linked with a lookup that can be made to fail.

#include "effekt/showmodel.h"
#include "effekt/simplemodel.h"
#include "tests/effekt/support.h"

using testing::HasSubstr;

namespace {

bool lines_are_lost = false;

} // namespace

// The linker's --wrap replaces AscModel::WfByName by lookup, and real_lookup by AscModel::WfByName.
#define WF_BY_NAME "_ZNK4kore8AscModel8WfByNameERKNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEERj"
bool real_lookup(kore::AscModel const* models, std::string const& name, unsigned int& list) asm("__real_" WF_BY_NAME);
bool lookup(kore::AscModel const* models, std::string const& name, unsigned int& list) asm("__wrap_" WF_BY_NAME);
bool lookup(kore::AscModel const* models, std::string const& name, unsigned int& list) {
    return !lines_are_lost && real_lookup(models, name, list);
}

namespace {

class MissingLinesDeathTest : public effect_test::EffectTest {
protected:
    void SetUp() override { WriteMesh("thing.asc", "thing"); }
    void TearDown() override { lines_are_lost = false; }

    kore::AscModel_ptr models = Library();
};

constexpr char const* expression = "Assertion `models->WfByName(model_name, myWireframe)' failed.\n";

TEST_F(MissingLinesDeathTest, AreReportedBySimpleModel) {
    EXPECT_NO_FATAL_FAILURE(effect::SimpleModel(models, "thing", ""));
    lines_are_lost = true;
    EXPECT_DEATH(
        effect::SimpleModel(models, "thing", ""),
        HasSubstr(std::string("effekt/simplemodel.cpp:28: effect::SimpleModel::SimpleModel(kore::AscModel_ptr, "
                              "const string&, const string&): ") +
                  expression));
}

TEST_F(MissingLinesDeathTest, AreReportedByShowModel) {
    lines_are_lost = true;
    EXPECT_DEATH(effect::ShowModel(models, "thing", ""),
                 HasSubstr(std::string("effekt/showmodel.cpp:28: effect::ShowModel::ShowModel(kore::AscModel_ptr, "
                                       "const string&, const string&): ") +
                           expression));
}

TEST_F(MissingLinesDeathTest, MakeTheFileBeLoadedAgainFirst) {
    effect::SimpleModel(models, "thing", "");
    std::filesystem::remove(Root() / "data/thing.asc");
    lines_are_lost = true;
    EXPECT_DEATH(effect::SimpleModel(models, "thing", ""), HasSubstr("effekt/simplemodel.cpp:25: "));
}

} // namespace
