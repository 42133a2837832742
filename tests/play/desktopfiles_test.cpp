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

TEST(DesktopFiles, NameTheVersion) {
    EXPECT_THAT(read(metainfo), HasSubstr("<release version=\"" HARDSILENCE_VERSION "\""));
}

} // namespace
