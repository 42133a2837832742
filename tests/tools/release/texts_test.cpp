// SPDX-License-Identifier: MIT
// The texts of a release, and its bill of materials.

#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

using testing::HasSubstr;

namespace {

/// The lines of a text of the party archive, as released.
std::vector<std::string> lines_of(std::string const& name) {
    std::string const path = "tools/packaging/party/" + name;
    std::istringstream text(support::run({"sed", "s/@VERSION@/" HARDSILENCE_VERSION "/", path}).output);
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
}

void expect_plain(std::vector<std::string> const& lines, std::size_t longest) {
    for (std::string const& line : lines) {
        EXPECT_LE(line.size(), longest) << line;
        EXPECT_TRUE(std::ranges::all_of(line, [](char c) { return c >= ' ' && c <= '~'; })) << line;
    }
}

TEST(FileIdDiz, IsTenLinesOf45CharactersAndWarns) {
    auto const lines = lines_of("file_id.diz");
    EXPECT_EQ(lines.size(), 10u);
    expect_plain(lines, 45);
    EXPECT_THAT(lines, testing::Contains(HasSubstr("STROBES")));
    EXPECT_THAT(lines, testing::Contains(HasSubstr(HARDSILENCE_VERSION)));
}

TEST(Nfo, IsOfPlainCharactersInEightyColumnsAndWarns) {
    auto const lines = lines_of("hardsilence.nfo");
    EXPECT_GT(lines.size(), 10u);
    expect_plain(lines, 80);
    EXPECT_THAT(lines, testing::Contains(HasSubstr("WARNING  The show strobes heavily")));
    EXPECT_THAT(lines, testing::Contains(HasSubstr(HARDSILENCE_VERSION)));
}

support::Outcome bill(std::string const& parts) {
    support::TempFolder const folder;
    return support::run_shell("tools/packaging/sbom 1.2.3 abcdef 86400 <'" + folder.Write("parts", parts) + "'");
}

/// The answer of jq, one line.
std::string asked(std::string const& json, std::string const& question) {
    support::TempFolder const folder;
    auto const outcome = support::run({"jq", "--raw-output", "--compact-output", question, folder.Write("bill", json)});
    EXPECT_EQ(outcome.status, 0) << outcome.error;
    return outcome.output;
}

TEST(BillOfMaterials, NamesWhatEachArtefactContains) {
    auto const made = bill("show.tar.xz\n"
                           "party.tar.xz\tlibthing1\t1.0-2\tZlib\tpkg:deb/debian/libthing1@1.0-2\n"
                           "party.tar.xz\tlibother\t3\tMIT OR GPL-2.0-only\n");
    ASSERT_EQ(made.status, 0) << made.error;
    EXPECT_EQ(asked(made.output, ".spdxVersion, .creationInfo.created"), "SPDX-2.3\n1970-01-02T00:00:00Z\n");
    EXPECT_EQ(asked(made.output, ".packages[] | [.name, .versionInfo, .licenseDeclared]"),
              "[\"show.tar.xz\",\"1.2.3\",\"MIT\"]\n"
              "[\"party.tar.xz\",\"1.2.3\",\"MIT\"]\n"
              "[\"libthing1\",\"1.0-2\",\"Zlib\"]\n"
              "[\"libother\",\"3\",\"MIT OR GPL-2.0-only\"]\n");
    EXPECT_EQ(asked(made.output, ".relationships[] | [.spdxElementId, .relationshipType, .relatedSpdxElement]"),
              "[\"SPDXRef-DOCUMENT\",\"DESCRIBES\",\"SPDXRef-show.tar.xz\"]\n"
              "[\"SPDXRef-DOCUMENT\",\"DESCRIBES\",\"SPDXRef-party.tar.xz\"]\n"
              "[\"SPDXRef-party.tar.xz\",\"CONTAINS\",\"SPDXRef-libthing1\"]\n"
              "[\"SPDXRef-party.tar.xz\",\"CONTAINS\",\"SPDXRef-libother\"]\n");
    EXPECT_EQ(asked(made.output, "[.. | .referenceLocator? // empty]"), "[\"pkg:deb/debian/libthing1@1.0-2\"]\n");
}

TEST(BillOfMaterials, GivesEveryElementAnIdOfItsOwn) {
    auto const made = bill("a.zip\tlib+1\t1\tMIT\na.zip\tlib_1\t1\tMIT\nb.zip\tlib+1\t1\tMIT\n");
    EXPECT_EQ(asked(made.output, "[.packages[].SPDXID] | length == (unique | length)"), "true\n") << made.output;
}

TEST(Changelog, HasTheVersion) {
    EXPECT_THAT(support::read_all("CHANGELOG.md"), HasSubstr("\n## [" HARDSILENCE_VERSION "] - 20"));
}

} // namespace
