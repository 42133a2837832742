// SPDX-License-Identifier: MIT
// The check for the line with the licence, in a checkout of its own.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string tag = "SPDX-License-Identifier: MIT";

class Licences : public testing::Test {
protected:
    Licences() {
        fs::create_directories(folder.Path("tools"));
        fs::create_directories(folder.Path("data/deep"));
        fs::copy("tools/licences", folder.Path("tools/licences"));
        Give("tools/licences", support::read_all(folder.Path("tools/licences")) + "# " + tag + "\n");
        Give("REUSE.toml", "path = [\n    \"**.md\",\n    \"data/**\",\n    \"REUSE.toml\",\n]\n");
        EXPECT_EQ(support::run({"git", "init", "-q", "."}, here).status, 0);
    }

    void Give(std::string const& name, std::string const& text) const { static_cast<void>(folder.Write(name, text)); }

    support::Outcome Run(std::string const& arguments = "") const {
        return support::run_shell("git add . && bash tools/licences " + arguments, here);
    }

    support::TempFolder const folder;
    support::Surroundings const here = {.folder = folder.Path("")};
};

TEST_F(Licences, AreMissedWhereNeitherLineNorListHasThem) {
    Give("README.md", "Read me.\n");
    Give("data/deep/thing.cpp", "int x;\n");
    Give("good.cpp", "// " + tag + "\nint y;\n");
    EXPECT_EQ(Run().status, 0);
    Give("bad.cpp", "int z;\n");
    auto const missed = Run();
    EXPECT_EQ(missed.status, 1);
    EXPECT_EQ(missed.error, "bad.cpp: no line with " + tag + "\n");
}

TEST_F(Licences, AreAddedOnceAsTheFileHasComments) {
    struct Case {
        char const* name;
        std::string before;
        std::string after;
    };
    Case const cases[] = {
        {"a.cpp", "int a;\n", "// " + tag + "\nint a;\n"},
        {"b", "#!/bin/sh\nfalse\n", "#!/bin/sh\n# " + tag + "\nfalse\n"},
        {"c.xml", "<?xml version=\"1.0\"?>\n<c/>\n", "<?xml version=\"1.0\"?>\n<!-- " + tag + " -->\n<c/>\n"},
        {"d.6", ".Dd today\n", ".\\\" " + tag + "\n.Dd today\n"},
        {"e.css", "p {}\n", "/* " + tag + " */\np {}\n"},
        {"f.orc", "sr = 1\n", "; " + tag + "\nsr = 1\n"},
    };
    for (auto const& [name, before, after] : cases) Give(name, before);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(Run("--add").status, 0);
        for (auto const& [name, before, after] : cases) EXPECT_EQ(support::read_all(folder.Path(name)), after);
    }
    EXPECT_EQ(Run().status, 0);
}

TEST_F(Licences, AreAskedForWhereCommentsAreNotKnown) {
    Give("strange", "1, 2, 3\n");
    auto const refused = Run("--add");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.error, "strange: how are comments written here? List it in REUSE.toml\n");
}

} // namespace
