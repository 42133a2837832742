// SPDX-License-Identifier: MIT
#include "tools/rehearse/gooddata.h"

#include "show/datacheck.h"
#include "show/show.h"
#include "tests/support/temp.h"
#include "tests/support/wave.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using Result = GoodData::Result;

namespace {

/// A folder with the show's data, which is the working folder.
class GoodDataTest : public testing::Test {
protected:
    GoodDataTest() {
        fs::copy("data", folder.Path("data"));
        fs::current_path(folder.Path(""));
    }
    ~GoodDataTest() { fs::current_path(before); }

    /// Moves a vertex.
    void Change(std::string const& file) const {
        std::string bytes = support::read_all(folder.Path(file));
        bytes[bytes.find("X:") + 2] = '9';
        folder.Write(file, bytes);
    }

    support::TempFolder const folder;
    fs::path const before = fs::current_path();
};

std::string check_of(GoodData const& data) {
    std::string wrong = "not looked";
    data.Within([&] { wrong = check_meshes(); });
    return wrong;
}

} // namespace

TEST_F(GoodDataTest, IsTakenOnce) {
    GoodData data;
    EXPECT_EQ(data.Take(), Result::New);
    EXPECT_EQ(data.Take(), Result::Same);
    EXPECT_EQ(check_of(data), "");
    EXPECT_EQ(fs::current_path(), fs::canonical(folder.Path("")));
}

TEST_F(GoodDataTest, IsTakenAgainWhenAFileHasChanged) {
    GoodData data;
    data.Take();
    Change("data/torus2.asc");
    EXPECT_EQ(data.Take(), Result::New);
    std::string copy;
    data.Within([&] { copy = support::read_all("data/torus2.asc"); });
    EXPECT_TRUE(copy == support::read_all("data/torus2.asc"));
    EXPECT_EQ(data.Take(), Result::Same);
}

TEST_F(GoodDataTest, KeepsTheLastGoodOneWhereAFileIsBroken) {
    GoodData data;
    data.Take();
    std::string const good = support::read_all("data/torus2.asc");
    folder.Write("data/torus2.asc", good.substr(0, good.size() / 2));
    EXPECT_EQ(data.Take(), Result::Faulty);
    EXPECT_THAT(data.Fault(), testing::StartsWith("data/torus2.asc"));
    EXPECT_EQ(check_of(data), "");
    folder.Write("data/torus2.asc", good);
    EXPECT_EQ(data.Take(), Result::Same);
    EXPECT_EQ(data.Fault(), "");
}

TEST_F(GoodDataTest, OutlivesItsFolder) {
    GoodData data;
    data.Take();
    data.TakeSoundtrack();
    fs::remove_all("data");
    EXPECT_EQ(data.Take(), Result::Faulty);
    EXPECT_EQ(data.TakeSoundtrack(), Result::Faulty);
    EXPECT_EQ(data.Fault(), "data/weknow.asc is missing\ndata/rump2.ogg is missing");
    EXPECT_EQ(check_of(data), "");
    EXPECT_TRUE(fs::exists(data.Soundtrack()));
}

TEST_F(GoodDataTest, HasACopyOfTheSoundtrack) {
    GoodData data;
    EXPECT_EQ(data.Soundtrack(), "");
    EXPECT_EQ(data.TakeSoundtrack(), Result::New);
    EXPECT_EQ(data.TakeSoundtrack(), Result::Same);
    EXPECT_TRUE(support::read_all(data.Soundtrack()) == support::read_all(soundtrack_file));
    std::string const first = data.Soundtrack();
    folder.Write(soundtrack_file, support::wave(48000, 100));
    EXPECT_EQ(data.TakeSoundtrack(), Result::New);
    EXPECT_FALSE(fs::exists(first));
    folder.Write(soundtrack_file, "no sound");
    EXPECT_EQ(data.TakeSoundtrack(), Result::Faulty);
    EXPECT_TRUE(support::read_all(data.Soundtrack()) == support::wave(48000, 100));
}

TEST_F(GoodDataTest, LeavesNothingBehind) {
    std::string soundtrack;
    {
        GoodData data;
        data.Take();
        data.TakeSoundtrack();
        soundtrack = data.Soundtrack();
    }
    EXPECT_FALSE(fs::exists(fs::path(soundtrack).parent_path()));
}
