// SPDX-License-Identifier: MIT
#include "tests/tools/record/readoptions.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

TEST(RecordOptions, HaveDefaults) {
    Outcome const outcome = read({"--beats", "1", "--out", "pictures"});
    EXPECT_FALSE(outcome.status.has_value());
    EXPECT_EQ(outcome.out + outcome.error, "");
    RecordOptions const& options = outcome.options;
    EXPECT_THAT(options.beats, ElementsAre(1000));
    EXPECT_EQ(options.folder, "pictures");
    EXPECT_EQ(options.width, 1024u);
    EXPECT_EQ(options.height, 768u);
    EXPECT_EQ(options.samples, 4u);
    EXPECT_EQ(options.columns, 5u);
    EXPECT_EQ(options.sheet + options.scene, "");
    EXPECT_TRUE(options.wire);
    EXPECT_FALSE(options.frame_after || options.list || options.calm);
}

TEST(RecordOptions, AreAllRead) {
    Outcome const outcome = read({"--beats", "1,2", "--sheet", "s.png", "--scene", "wire", "--size", "64x48",
                                  "--samples", "0", "--columns", "3", "--no-wire", "--calm", "--frame-after"});
    EXPECT_FALSE(outcome.status.has_value());
    RecordOptions const& options = outcome.options;
    EXPECT_THAT(options.beats, ElementsAre(1000, 2000));
    EXPECT_EQ(options.sheet, "s.png");
    EXPECT_EQ(options.scene, "wire");
    EXPECT_TRUE(options.calm);
    EXPECT_EQ(options.width, 64u);
    EXPECT_EQ(options.height, 48u);
    EXPECT_EQ(options.samples, 0u);
    EXPECT_EQ(options.columns, 3u);
    EXPECT_FALSE(options.wire);
    EXPECT_TRUE(options.frame_after);
    EXPECT_TRUE(read({"--no-wire", "--wire", "--list"}).options.wire) << "the later one counts";
    EXPECT_FALSE(read({"--no-wire", "--wire", "--no-wire", "--list"}).options.wire);
    EXPECT_EQ(read({"--columns", "3", "--columns", "07", "--list"}).options.columns, 7u);
    EXPECT_EQ(read({"--out", "--list", "--beats", "1"}).options.folder, "--list") << "a value is taken as it is";
}

TEST(RecordOptions, ListNeedsNothingElse) {
    Outcome const outcome = read({"--list"});
    EXPECT_FALSE(outcome.status.has_value());
    EXPECT_TRUE(outcome.options.list);
}

TEST(RecordOptions, ATimelineNeedsNothingElse) {
    Outcome const outcome = read({"--timeline", "a.svg"});
    EXPECT_FALSE(outcome.status.has_value());
    EXPECT_EQ(outcome.options.timeline, "a.svg");
}

TEST(RecordOptions, FaultsGetOneLineAndStatusOne) {
    std::string const no_beats = " is not a list of beats such as 0.5,3.25 or 0:16:0.5, to thousandths";
    std::string const no_picture = "no beats to record, see --beats; nor a film, see --film";
    std::string const no_size = " is not a size such as 1024x768, up to 16384x16384";
    // clang-format off
    Refusal const cases[] = {
        {{},                          no_picture},
        {{"--out", "x"},              no_picture},
        {{"--beats", "1"},            "nowhere to write to, see --out and --sheet"},
        {{"--overview", "--beats", "1"}, "either --beats or --overview"},
        {{"--overview", "--scene", "x"}, "either --scene or --overview"},
        {{"--overview"},              "nowhere to write to, see --out and --sheet"},
        {{"--fast"},                  "The following argument was not expected: --fast"},
        {{"12.4"},                    "The following argument was not expected: 12.4"},
        {{"--beats"},                 "--beats: 1 required LIST missing"},
        {{"--beats", "1", "--out"},   "--out: 1 required DIR missing"},
        {{"--beats", "1,,2"},         "--beats: '1,,2'" + no_beats},
        {{"--beats", "4:1:1"},        "--beats: '4:1:1'" + no_beats},
        {{"--beats", "0:1:0.0005"},   "--beats: '0:1:0.0005'" + no_beats},
        {{"--beats", "1.0000"
                     "0000000000000000000000000000000000000000000000000000000000000001"},
                                      "--beats: '1." + std::string(55, '0') + "...'" + no_beats},
        {{"--out", ""},               "--out: '' is not a path"},
        {{"--sheet", ""},             "--sheet: '' is not a path that ends in .png"},
        {{"--sheet", "a.jpg"},        "--sheet: 'a.jpg' is not a path that ends in .png"},
        {{"--scene", ""},             "--scene: '' is not a scene's name; --list shows them"},
        {{"--timeline", "a.png"},     "--timeline: 'a.png' is not a path that ends in .svg"},
        {{"--timeline", "a.svg", "--beats", "1"}, "either a timeline or pictures and films"},
        {{"--timeline", "a.svg", "--film", "b.mp4"}, "either a timeline or pictures and films"},
        {{"--size", "1024"},          "--size: '1024'" + no_size},
        {{"--size", "1024x"},         "--size: '1024x'" + no_size},
        {{"--size", "x768"},          "--size: 'x768'" + no_size},
        {{"--size", "0x768"},         "--size: '0x768'" + no_size},
        {{"--size", "16385x1"},       "--size: '16385x1'" + no_size},
        {{"--size", "4x3x2"},         "--size: '4x3x2'" + no_size},
        {{"--size", "-4x3"},          "--size: '-4x3'" + no_size},
        {{"--size", "99999999999x1"}, "--size: '99999999999x1'" + no_size},
        {{"--samples", "65"},         "--samples: '65' is not a number from 0 to 64"},
        {{"--samples", "four"},       "--samples: 'four' is not a number from 0 to 64"},
        {{"--samples", "-1"},         "--samples: '-1' is not a number from 0 to 64"},
        {{"--samples", "0x8"},        "--samples: '0x8' is not a number from 0 to 64"},
        {{"--samples", " 4"},         "--samples: ' 4' is not a number from 0 to 64"},
        {{"--columns", "0"},          "--columns: '0' is not a number from 1 to 100"},
        {{"--columns", "101"},        "--columns: '101' is not a number from 1 to 100"},
    };
    // clang-format on
    expect_refusals(cases);
}

TEST(RecordOptions, HelpNamesEveryOption) {
    for (char const* const option : {"-h", "--help"}) {
        Outcome const outcome = read({option, "--nonsense"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.error, "");
        for (char const* const name :
             {"--beats LIST", "--out DIR", "--sheet FILE", "--scene NAME", "--frame-after", "--size WxH", "--samples N",
              "--columns N", "--overview", "--timeline FILE", "--wire", "--no-wire", "--list"}) {
            EXPECT_THAT(outcome.out, HasSubstr(std::string("\n  ") + name));
        }
    }
}

TEST(RecordOptions, TellTheVersion) {
    Outcome const outcome = read({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "hardsilence-record " HARDSILENCE_VERSION "\n");
    EXPECT_EQ(outcome.error, "");
}
