// SPDX-License-Identifier: MIT
#pragma once

#include "kore/ascmodel.h"
#include "kore/statedata.h"
#include "tests/support/glrecorder.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

/// What the tests of the effects share.
namespace effect_test {

/// A frame's timing record.
kore::StateData state_at(float time, int beat = -1, bool new_beat = false);

/// Changes the working folder for its lifetime.
class WorkingFolder {
public:
    explicit WorkingFolder(std::filesystem::path const& path);
    ~WorkingFolder();
    WorkingFolder(WorkingFolder const&) = delete;
    WorkingFolder& operator=(WorkingFolder const&) = delete;

private:
    std::filesystem::path before;
};

/// Each test starts with a fresh stand-in for OpenGL and an empty folder "data/" for small meshes.
class EffectTest : public testing::Test {
protected:
    EffectTest();

    /// Writes data/<file> with one object of two triangles: (0,0,0) (1,0,0) (1,1,0) and (0,0,0) (1,1,0) (0,1,0).
    void WriteMesh(std::string const& file, std::string const& object) const;

    /// A library over "data/".
    kore::AscModel_ptr Library() const;

    /// The folder that holds "data/".
    std::filesystem::path Root() const { return folder.Path(""); }

    /// The reports of an effect whose constructor takes a library, a model's name and a file's name, where the file is
    /// missing or holds another model. Expects "thing.asc" to be missing and "other.asc" to hold "other".
    template<class Effect>
    static void ExpectDeathWithoutModel(kore::AscModel_ptr const& models, std::string const& file,
                                        std::string const& constructor) {
        struct {
            char const* model_name;
            char const* file_name;
            int line;
            char const* expression;
        } const rows[] = {
            {"thing", "missing.asc", 23, R"(models->LoadModel(file_name) >= 0)"},
            {"none", "", 25, R"(models->LoadModel(model_name + ".asc") >= 0)"},
            {"thing", "other.asc", 27, R"(models->ModelByName(model_name, myModel))"},
        };
        for (auto const& row : rows) {
            SCOPED_TRACE(row.expression);
            EXPECT_DEATH(Effect(models, row.model_name, row.file_name),
                         testing::HasSubstr("effekt_test: " + file + ":" + std::to_string(row.line) + ": " +
                                            constructor +
                                            "(kore::AscModel_ptr, const string&, const string&): Assertion `" +
                                            row.expression + "' failed.\n"));
        }
    }

    /// Lets the log show the two lists of a loaded object as its name and its name with "-lines".
    static void NameLists(kore::AscModel const& models, std::string const& object);

private:
    support::TempFolder const folder;
};

/// The triangles and the lines of a mesh of WriteMesh, as its lists hold them.
extern char const* const mesh_faces;
extern char const* const mesh_lines;

} // namespace effect_test
