// SPDX-License-Identifier: MIT
#include "tests/support/command.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

using testing::HasSubstr;

namespace {

constexpr char const* metainfo = "tools/desktop/org.hardsilence.hardsilence.metainfo.xml";
constexpr char const* entry = "tools/desktop/hardsilence.desktop";

std::string read(std::string const& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    EXPECT_TRUE(file) << path;
    return text.str();
}

TEST(DesktopFiles, PleaseTheProgramsThatReadThem) {
    support::Outcome const menu = support::run({"desktop-file-validate", entry});
    EXPECT_EQ(menu.status, 0);
    EXPECT_EQ(menu.output + menu.error, "");
    support::Outcome const shop = support::run({"appstreamcli", "validate", "--no-net", "--pedantic", metainfo});
    EXPECT_EQ(shop.status, 0);
    EXPECT_THAT(shop.output, HasSubstr("Validation was successful.")) << shop.output; // with a colon, it has remarks
}

TEST(DesktopFiles, WarnOfTheStrobesAndTellHowToWatchWithout) {
    EXPECT_THAT(read(metainfo), HasSubstr("Warning: the show strobes heavily"));
    EXPECT_THAT(read(metainfo), HasSubstr("hardsilence-play --calm"));
    EXPECT_THAT(read(entry), HasSubstr("not for anyone with photosensitive epilepsy"));
    EXPECT_THAT(read(entry), HasSubstr("Exec=hardsilence-play --calm\n"));
}

TEST(DesktopFiles, NameAnIconThatIsInstalledInEverySize) {
    EXPECT_THAT(read(entry), HasSubstr("\nIcon=hardsilence\n"));
    for (int const size : {16, 32, 48, 64, 128, 256}) {
        std::string const png = read("tools/desktop/icons/" + std::to_string(size) + ".png");
        ASSERT_GT(png.size(), 24u);
        auto const number = [&](std::size_t at) { // four bytes, the highest first
            return static_cast<unsigned char>(png[at + 2]) * 256 + static_cast<unsigned char>(png[at + 3]);
        };
        EXPECT_EQ(number(16), size); // width and height, in the header
        EXPECT_EQ(number(20), size);
    }
}

/// After a change of the model: cmake --build build-dev --target icons
TEST(DesktopFiles, HaveTheIconThatTheModelMakes) {
    support::Outcome const drawn = support::run({"tools/desktop/icon", "data/spikeydodecahedron.asc"});
    EXPECT_EQ(drawn.status, 0) << drawn.error;
    EXPECT_EQ(drawn.output, read("tools/desktop/icons/hardsilence.svg"));
}

TEST(DesktopFiles, NameTheVersion) {
    EXPECT_THAT(read(metainfo), HasSubstr("<release version=\"" HARDSILENCE_VERSION "\""));
}

} // namespace
