// SPDX-License-Identifier: MIT
#include "show/datacheck.h"

#include "kore/ascfile.h"
#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using support::read_all;

namespace {

/// A copy of the show's meshes.
class DataCheck : public testing::Test {
protected:
    DataCheck() {
        fs::create_directory(root.Path("data"));
        for (MeshFile const& mesh : mesh_files()) {
            fs::copy_file(HARDSILENCE_SOURCE_DIR + std::string("/data/") + mesh.name, Path(mesh.name));
        }
    }

    std::string Path(std::string const& name) const { return root.Path("data/" + name); }
    void Write(std::string const& name, std::string const& text) const { root.Write("data/" + name, text); }

    /// What the check says there.
    std::string Check() const {
        auto const check = [] {
            std::cout << check_meshes();
            return 0;
        };
        return support::run_in_child(check, {.folder = root.Path("")}).output;
    }

    support::TempFolder const root;
};

std::string objects(int count, int faces) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += std::string(i > 0 ? "\r\n" : "") +
               "Named object: \"glass\"\r\nTri-mesh, Vertices: 1     Faces: " + std::to_string(faces) +
               "\r\nVertex list:\r\nVertex 0: X:1 Y:2 Z:3\r\nFace list:\r\n";
        for (int face = 0; face < faces; ++face) all += "Face 0: A:0 B:0 C:0 AB:1 BC:1 CA:1\r\n";
    }
    return all;
}

} // namespace

TEST_F(DataCheck, FindsNothingWrongWithTheShowsOwn) { EXPECT_EQ(Check(), ""); }

TEST_F(DataCheck, KnowsEveryMeshAndEveryObject) {
    std::set<std::string> listed, there;
    for (MeshFile const& mesh : mesh_files()) {
        listed.insert(mesh.name);
        kore::AscFile file;
        ASSERT_TRUE(file.Open(Path(mesh.name)));
        std::vector<std::string> names;
        while (file.Next() == kore::AscFile::Result::Object) names.push_back(file.GetName());
        EXPECT_THAT(names, testing::UnorderedElementsAreArray(mesh.objects)) << mesh.name;
    }
    for (auto const& entry : fs::directory_iterator(HARDSILENCE_SOURCE_DIR "/data")) {
        if (entry.path().extension() == ".asc") there.insert(entry.path().filename());
    }
    EXPECT_EQ(listed, there);
}

TEST_F(DataCheck, NamesTheFileAndItsFault) {
    std::string const good = read_all(Path("glass.asc"));
    std::string renamed = good;
    renamed.replace(good.find("glass"), 5, "glasS");
    std::pair<std::string, std::string> const cases[] = {
        {"", ": Bad file format, vertex count mismatch."},
        {renamed, " holds no object 'glass'"},
        {good.substr(0, good.size() / 2), ": Bad file format, face count mismatch. Reported: "},
        {objects(1, 10000), ""},
        {objects(1, 10001), " has an object of more than 10000 faces, too many to be shattered"},
        {objects(10001, 1), ": Bad file format in data/glass.asc: more than 10000 objects."},
        {"\r\n" + good, " holds no object 'glass'"},
    };
    for (auto const& [text, wrong] : cases) {
        Write("glass.asc", text);
        if (wrong.empty()) {
            EXPECT_EQ(Check(), "");
        } else {
            EXPECT_THAT(Check(), testing::StartsWith("data/glass.asc" + wrong));
        }
    }
}

TEST_F(DataCheck, TakesRegularFilesWithinTheLimitAlone) {
    std::string const path = Path("torus2.asc");
    auto const expect = [&](std::string const& wrong) {
        EXPECT_EQ(Check(), "data/torus2.asc" + wrong);
        fs::remove_all(path);
    };
    fs::remove(path);
    expect(" is missing");
    fs::create_symlink("nowhere", path);
    expect(" is missing");
    fs::create_symlink("torus2.asc", path);
    expect(" cannot be read: Too many levels of symbolic links");
    fs::create_directory(path);
    expect(" is not a regular file");
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    expect(" is not a regular file");
    fs::create_symlink("/dev/zero", path);
    expect(" is not a regular file");
    Write("torus2.asc", "");
    fs::resize_file(path, std::uintmax_t{4} << 30); // all of it a hole
    expect(" has more than 64 MiB");
}

TEST_F(DataCheck, KnowsASoundtrackByItsFirstBytes) {
    std::string const music = read_all(HARDSILENCE_SOURCE_DIR "/data/rump2.ogg");
    EXPECT_EQ(check_soundtrack(root.Write("a.ogg", music)), "");
    std::string const path = root.Path("a.ogg");
    auto const expect = [&](std::string const& wrong) { EXPECT_EQ(check_soundtrack(path), path + wrong); };
    static_cast<void>(root.Write("a.ogg", "noise"));
    expect(" is not Ogg Vorbis, FLAC or WAVE of up to 8 channels");
    fs::resize_file(path, std::uintmax_t{4} << 30);
    expect(" has more than 64 MiB");
    fs::remove(path);
    expect(" is missing");
    fs::create_directory(path);
    expect(" is not a regular file");
}
