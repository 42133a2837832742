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

/// Another working folder for as long as it lives.
class WorkingFolder {
public:
    explicit WorkingFolder(std::filesystem::path const& path);
    ~WorkingFolder();
    WorkingFolder(WorkingFolder const&) = delete;
    WorkingFolder& operator=(WorkingFolder const&) = delete;

private:
    std::filesystem::path before;
};

/// Each test starts with a fresh stand-in for OpenGL and with a folder "data/" that holds a few small meshes.
class EffectTest : public testing::Test {
protected:
    EffectTest();

    /// Writes data/<file> with one object of two triangles: (0,0,0) (1,0,0) (1,1,0) and (0,0,0) (1,1,0) (0,1,0).
    void WriteMesh(std::string const& file, std::string const& object) const;

    /// A library over "data/".
    kore::AscModel_ptr Library() const;

    /// The folder that holds "data/".
    std::filesystem::path Root() const { return folder.Path(""); }

    /// Lets the log show the two lists of a loaded object as its name and its name with "-lines".
    static void NameLists(kore::AscModel const& models, std::string const& object);

private:
    support::TempFolder const folder;
};

/// The triangles and the lines of a mesh of WriteMesh, as its lists hold them.
extern char const* const mesh_faces;
extern char const* const mesh_lines;

} // namespace effect_test
