// SPDX-License-Identifier: MIT
#include "tools/film/command.h"

#include "tests/support/command.h"

#include <algorithm>
#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

EncoderTask const part = {.file = "/a/b.mp4",
                          .format = find_format("b.mp4"),
                          .width = 64,
                          .height = 48,
                          .plan = {{60}, 100, 160, 600, 602},
                          .music = "m.ogg"};

/// What follows a word in the command.
std::string after(std::vector<std::string> const& command, std::string const& word) {
    auto const found = std::ranges::find(command, word);
    return found == command.end() ? "(not there)" : *std::next(found);
}

} // namespace

TEST(EncoderCommands, DescribeThePixels) {
    auto const command = encoder_command(part);
    EXPECT_EQ(command.front(), "ffmpeg");
    EXPECT_EQ(after(command, "-pixel_format"), "rgb24");
    EXPECT_EQ(after(command, "-video_size"), "64x48");
    EXPECT_EQ(after(command, "-framerate"), "60");
    EXPECT_EQ(after(command, "-c:v"), "libx264");
    EXPECT_EQ(after(command, "-c:a"), "aac");
    EXPECT_EQ(command.back(), "file:/a/b.mp4");
    EncoderTask television = part;
    television.plan.rate = {60000, 1001};
    EXPECT_EQ(after(encoder_command(television), "-framerate"), "60000/1001");
}

TEST(EncoderCommands, CutTheSoundOnTheSampleAndFillItUp) {
    EXPECT_EQ(after(encoder_command(part), "-af"),
              "atrim=start_sample=80000:end_sample=128000,asetpts=PTS-STARTPTS,apad=whole_len=48000");
    EncoderTask television = part;
    television.plan.rate = {60000, 1001};
    EXPECT_EQ(after(encoder_command(television), "-af"),
              "atrim=start_sample=80080:end_sample=128128,asetpts=PTS-STARTPTS,apad=whole_len=48048");
}

TEST(EncoderCommands, HaveNoSoundWhereThereIsNone) {
    EncoderTask silent = part;
    silent.music = "";
    EncoderTask moving = part;
    moving.format = find_format("a.gif");
    for (EncoderTask const& task : {silent, moving}) {
        auto const command = encoder_command(task);
        EXPECT_THAT(command, Not(Contains("-af")));
        EXPECT_THAT(command, Not(Contains("-c:a")));
        EXPECT_EQ(std::ranges::count(command, "-i"), 1);
    }
}

TEST(EncoderCommands, TakeTheUsersArguments) {
    EncoderTask own = part;
    own.arguments = "-c:v libsvtav1 -metadata 'title=My film'";
    own.format = nullptr;
    auto const command = encoder_command(own);
    EXPECT_EQ(after(command, "-c:v"), "libsvtav1");
    EXPECT_THAT(command, Contains("title=My film"));
    EXPECT_THAT(command, Not(Contains("libx264")));
    EXPECT_THAT(command, Contains("-af"));
}

TEST(EncoderCommands, WarnOfTheStrobes) {
    EncoderTask calm = part;
    calm.calm = true;
    EXPECT_THAT(encoder_command(part), Contains(testing::StartsWith("comment=Warning: this show strobes heavily")));
    EXPECT_THAT(encoder_command(calm), Contains("comment=The calm mode: held cuts instead of strobes."));
    EXPECT_THAT(encoder_command(calm), Not(Contains(testing::HasSubstr("Warning"))));
}

TEST(EncoderCommands, AreToldToScriptsInPieces) {
    EncoderTask task = part;
    task.music = "/it's/m.ogg";
    auto const script = support::run({"bash", "-c", encoder_script(task, "/it's") + R"(
        echo "$frames $rate $size $home"
        printf '<%s>' ffmpeg "${sound[@]:0:8}" "${tags[@]}" "${video[@]}" "${sound[@]:8}")"});
    auto const command = encoder_command(task);
    auto const second_input = std::ranges::find(std::ranges::find(command, "pipe:0"), command.end(), "-i");
    std::string expected = "100:160 60 64x48 /it's\n<ffmpeg>";
    for (auto word = second_input; word != std::prev(command.end()); ++word) expected += "<" + *word + ">";
    EXPECT_EQ(script.output, expected);
    EXPECT_EQ(script.error, "");
    task.music = "";
    EXPECT_THAT(encoder_script(task, "/"), testing::HasSubstr("\nsound=()\n"));
}

TEST(EncoderCommands, SplitArgumentsAtSpacesOutsideQuotes) {
    EXPECT_THAT(split_arguments(""), ElementsAre());
    EXPECT_THAT(split_arguments("  a  b\tc "), ElementsAre("a", "b", "c"));
    EXPECT_THAT(split_arguments("a 'b c' \"d 'e\" f'g h'i ''"), ElementsAre("a", "b c", "d 'e", "fg hi", ""));
}
