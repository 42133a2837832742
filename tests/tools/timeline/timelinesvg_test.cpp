// SPDX-License-Identifier: MIT
#include "tools/timeline/timelinesvg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

using testing::HasSubstr;
using testing::Not;

namespace {

int count(std::string const& text, std::string const& part) {
    int found = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size()) ++found;
    return found;
}

TimelineScene scene(std::string const& title, int first, int beats) {
    return {title, first, beats, {{"Blinker", "", first, beats, 0}}, {}, 1};
}

Timeline const two_scenes{{scene("One", 0, 60), scene("Two & <a half>", 60, 60)}};

} // namespace

TEST(TimelineSvg, DrawsEachSceneWholeInARow) {
    std::string const svg = timeline_svg(two_scenes, {}, "A Show");
    EXPECT_THAT(svg, HasSubstr(">A Show</text>"));
    EXPECT_THAT(svg, HasSubstr("2 scenes, 120 beats, 132 a minute, 0:55"));
    EXPECT_EQ(count(svg, "class=\"scene\""), 2);
    EXPECT_EQ(count(svg, "class=\"mean\""), 2) << "120 beats do not fit into one row";
    EXPECT_THAT(svg, HasSubstr(">Two &amp; &lt;a half&gt;</text>"));
    EXPECT_EQ(count(svg, "<g>"), count(svg, "</g>"));
}

TEST(TimelineSvg, CutsASceneThatIsLongerThanARow) {
    std::string const svg = timeline_svg({{scene("Long", 0, 250)}}, {}, "A Show");
    EXPECT_EQ(count(svg, "class=\"mean\""), 3);
    EXPECT_EQ(count(svg, "Blinker, beats 0 to 250"), 3);
}

TEST(TimelineSvg, DrawsAnEventThatFallsIntoItsSceneAndNoOther) {
    Timeline timeline = two_scenes;
    using Blink = kore::BlinkerInterface;
    timeline.scenes[0].events = {{12250, Blink::Flip, 1}, {60000, Blink::Flip, 1}, {1000, Blink::Strobe, 9000}};
    std::string const svg = timeline_svg(timeline, {}, "A Show");
    EXPECT_THAT(svg, HasSubstr("flip 1, beat 12.25"));
    EXPECT_THAT(svg, Not(HasSubstr("flip 1, beat 60")));
    EXPECT_THAT(svg, HasSubstr("strobe 9000, beat 1<"));
    // The strobe runs on to the end of the scene: 59 beats of 15, less the gap.
    EXPECT_THAT(svg, HasSubstr("width=\"883.0\" height=\"4.0\""));
}

TEST(TimelineSvg, CutsNamesToTheirBars) {
    Timeline timeline = two_scenes;
    timeline.scenes[0].cues = {{"SimpleModel", "a_model_with_a_long_name", 3, 4, 0}};
    std::string const svg = timeline_svg(timeline, {}, "A Show");
    EXPECT_THAT(svg, HasSubstr(">a_model_w</text>"));
    EXPECT_THAT(svg, HasSubstr("<title>SimpleModel a_model_with_a_long_name, beats 3 to 7</title>"));
}
