// SPDX-License-Identifier: MIT
#include "tests/support/command.h"
#include "tests/support/temp.h"

#include <fstream>
#include <gmock/gmock.h>
#include <utility>

using testing::HasSubstr;

namespace {

constexpr char const* metainfo = "tools/desktop/org.hardsilence.hardsilence.metainfo.xml";
constexpr char const* entry = "tools/desktop/hardsilence.desktop";

std::string read(std::string const& path) {
    std::string const text = support::read_all(path);
    EXPECT_NE(text, "") << path;
    return text;
}

/// Width and height, as the header has them.
std::pair<int, int> size_of_png(std::string const& path) {
    std::string const png = read(path);
    if (png.size() < 24) return {0, 0};
    auto const number = [&](std::size_t at) { // four bytes, the highest first
        return static_cast<unsigned char>(png[at + 2]) * 256 + static_cast<unsigned char>(png[at + 3]);
    };
    return {number(16), number(20)};
}

void expect_valid(std::string const& page) {
    support::Outcome const shop = support::run({"appstreamcli", "validate", "--no-net", "--pedantic", page});
    EXPECT_EQ(shop.status, 0);
    EXPECT_THAT(shop.output, HasSubstr("Validation was successful.")) << shop.output; // with a colon, it has remarks
}

/// Writes the page as it is installed.
support::Outcome make_page(std::string const& address, std::string const& to) {
    return support::run({"cmake", "-DADDRESS=" + address, "-DTO=" + to, "-P", "tools/desktop/metainfo.cmake"});
}

TEST(DesktopFiles, PleaseTheProgramsThatReadThem) {
    support::Outcome const menu = support::run({"desktop-file-validate", entry});
    EXPECT_EQ(menu.status, 0);
    EXPECT_EQ(menu.output + menu.error, "");
    expect_valid(metainfo);
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
        EXPECT_EQ(size_of_png("tools/desktop/icons/" + std::to_string(size) + ".png"), std::pair(size, size));
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

/// After a change of the show: cmake --build build-dev --target pictures
TEST(SoftwareCentres, ShowPicturesFromTheAddressOfTheRelease) {
    support::TempFolder const folder;
    std::string const page = folder.Path("page.metainfo.xml");
    ASSERT_EQ(make_page("https://demos.example.org/show/", page).status, 0);
    expect_valid(page);
    std::ifstream table("tools/desktop/pictures.txt");
    int pictures = 0;
    for (std::string beat, caption; table >> beat && std::getline(table >> std::ws, caption); ++pictures) {
        EXPECT_THAT(read(page), HasSubstr("<caption>" + caption + "</caption>"));
        std::string const name = "pictures/beat_" + beat + ".png";
        EXPECT_THAT(read(page), HasSubstr(">https://demos.example.org/show/" + name + "</image>"));
        EXPECT_EQ(size_of_png("tools/desktop/" + name), std::pair(1024, 768));
    }
    EXPECT_GE(pictures, 3);
}

TEST(SoftwareCentres, ShowNoPicturesWithoutAnAddress) {
    support::TempFolder const folder;
    std::string const page = folder.Path("page.metainfo.xml");
    ASSERT_EQ(make_page("", page).status, 0);
    EXPECT_EQ(read(page), read(metainfo));
    EXPECT_NE(make_page("somewhere", page).status, 0);
    EXPECT_NE(make_page("https://a.b/\"><script>", page).status, 0);
    EXPECT_NE(make_page("https://a.b/`id`", page).status, 0);
}

} // namespace
