// SPDX-License-Identifier: MIT
#include "tools/record/filmoptions.h"

#include "tests/tools/record/readoptions.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

TEST(FilmOptions, AreAllRead) {
    RecordOptions const options =
        read({"--film", "show.mp4", "--fps", "60000/1001", "--from", "1.5", "--to", "8", "--encoder", "-c:v copy",
              "--no-sound", "--jobs", "3", "--supersample", "2", "--stretch", "--scene", "intro"})
            .options;
    EXPECT_TRUE(options.film.Wanted());
    EXPECT_EQ(options.film.file, "show.mp4");
    EXPECT_EQ(options.film.rate, (FrameRate{60000, 1001}));
    EXPECT_EQ(options.film.from, 1500);
    EXPECT_EQ(options.film.to, 8000);
    EXPECT_EQ(options.film.encoder, "-c:v copy");
    EXPECT_FALSE(options.film.sound);
    EXPECT_EQ(options.film.jobs, 3u);
    EXPECT_EQ(options.supersample, 2u);
    EXPECT_TRUE(options.stretch);
    EXPECT_FALSE(read({"--md5", "--stretch", "--letterbox"}).options.stretch) << "the later one counts";
    EXPECT_EQ(read({"--raw", "-", "--frames", "7:9"}).options.film.frames, (FrameRange{7, 9}));
}

TEST(FilmOptions, HaveDefaultsThatFollowTheFormat) {
    // clang-format off
    std::tuple<std::vector<char const*>, unsigned int, unsigned int, int> const cases[] = {
        {{"--film", "a.mp4"},                     1920, 1080, 60},
        {{"--film", "a.MKV"},                     1920, 1080, 60},
        {{"--film", "a.webm"},                    1920, 1080, 60},
        {{"--film", "a.gif"},                     512,  384,  25},
        {{"--film", "a.webp"},                    512,  384,  25},
        {{"--film", "a.mov", "--encoder", "x"},   1920, 1080, 60},
        {{"--raw", "-"},                          1920, 1080, 60},
        {{"--y4m", "-"},                          1920, 1080, 60},
        {{"--md5"},                               1920, 1080, 60},
        {{"--film", "a.gif", "--size", "64x48"},  64,   48,   25},
        {{"--film", "a.gif", "--fps", "50"},      512,  384,  50},
    };
    // clang-format on
    for (auto const& [arguments, width, height, rate] : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        Outcome const outcome = read(arguments);
        EXPECT_FALSE(outcome.status.has_value()) << outcome.error;
        EXPECT_EQ(outcome.options.width, width);
        EXPECT_EQ(outcome.options.height, height);
        EXPECT_EQ(outcome.options.film.rate, (FrameRate{rate, 1}));
        EXPECT_TRUE(outcome.options.film.sound);
        EXPECT_EQ(outcome.options.film.jobs, 0u);
    }
}

TEST(FilmOptions, ReadRangesOfFrames) {
    EXPECT_EQ(parse_frames("0:1"), (FrameRange{0, 1}));
    EXPECT_EQ(parse_frames("100:"), (FrameRange{100, {}}));
    EXPECT_EQ(parse_frames(":200"), (FrameRange{{}, 200}));
    for (char const* const text : {"", ":", "5", "5:5", "6:5", ":0", "-1:5", "1:x", "1:2:3", " 1:2", "1:1000001"}) {
        EXPECT_FALSE(parse_frames(text).has_value()) << text;
    }
}

TEST(FilmOptions, FaultsGetOneLineAndStatusOne) {
    std::string const no_rate = " is not a rate from 24000/1001 to 240, such as 60 or 60000/1001";
    std::string const no_range = " is not a range of frames such as 100:200, 100: or :200";
    std::string const known = "known are .mp4, .mkv, .webm, .gif, .webp";
    std::string const streams = "only one of --raw, --y4m and --md5 fits on standard output";
    // clang-format off
    Refusal const cases[] = {
        {{"--film", ""},                                      "--film: '' is not a path"},
        {{"--film", "a.mov"},                                 "cannot tell by its name what a.mov should be; " + known},
        {{"--film", "a.mp4", "--size", "65x48"},              ".mp4 takes an even width and height"},
        {{"--film", "a.webm", "--size", "64x49"},             ".webm takes an even width and height"},
        {{"--raw", "a"},                                      "--raw: 'a' is not -, for standard output"},
        {{"--y4m", "a"},                                      "--y4m: 'a' is not -, for standard output"},
        {{"--raw", "-", "--md5"},                             streams},
        {{"--raw", "-", "--y4m", "-"},                        streams},
        {{"--md5", "--fps", "12"},                            "--fps: '12'" + no_rate},
        {{"--md5", "--frames", "2:1"},                        "--frames: '2:1'" + no_range},
        {{"--md5", "--frames", "1:2", "--from", "1"},         "either --frames or --scene, --from and --to"},
        {{"--md5", "--frames", "1:2", "--scene", "intro"},    "either --frames or --scene, --from and --to"},
        {{"--md5", "--from", "2", "--to", "2"},               "--from lies at or after --to"},
        {{"--md5", "--from", "-1"},                           "--from: '-1' is not a number of beats such as 12.4"},
        {{"--md5", "--encoder", "x"},                         "--encoder is for --film"},
        {{"--md5", "--plan"},                                 "--plan is for --film alone"},
        {{"--film", "a.mkv", "--md5", "--plan"},              "--plan is for --film alone"},
        {{"--md5", "--jobs", "0"},                            "--jobs: '0' is not a number from 1 to 64"},
        {{"--md5", "--supersample", "17"},                    "--supersample: '17' is not a number from 1 to 16"},
        {{"--md5", "--beats", "1"},                           "either pictures or a film"},
        {{"--md5", "--out", "x"},                             "either pictures or a film"},
        {{"--md5", "--overview"},                             "either pictures or a film"},
    };
    // clang-format on
    expect_refusals(cases);
}

TEST(FilmOptions, AreInTheHelp) {
    Outcome const outcome = read({"--help"});
    for (char const* const name :
         {"--film FILE", "--raw -", "--y4m -", "--md5", "--plan", "--fps RATE", "--from BEAT", "--to BEAT",
          "--frames A:B", "--encoder ARGS", "--no-sound", "--jobs N", "--supersample N", "--stretch", "--letterbox"}) {
        EXPECT_THAT(outcome.out, HasSubstr(std::string("\n  ") + name));
    }
    EXPECT_THAT(outcome.out, HasSubstr("Strobes flicker per frame"));
}
