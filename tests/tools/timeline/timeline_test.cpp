// SPDX-License-Identifier: MIT
#include "tools/timeline/timeline.h"

#include "runtime/beatclock.h"
#include "tests/show/scores.h"
#include "tests/support/temp.h"
#include "tests/support/wave.h"
#include "tests/support/withlook.h"
#include "tools/timeline/waveform.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using scores::Score;

namespace {

Timeline of_the_show() {
    kore::Demo demo(beat_seconds);
    init_demo(demo, nullptr, beat_seconds);
    return make_timeline(demo, models.get(), beat_seconds);
}

/// The labels of a scene's cues of one class.
std::vector<std::string> labels(Timeline const& timeline, std::size_t scene, std::string const& kind) {
    std::vector<std::string> found;
    for (TimelineCue const& cue : timeline.scenes.at(scene).cues) {
        if (cue.kind == kind) found.push_back(cue.Label());
    }
    return found;
}

} // namespace

TEST(TimelineModel, HasTheScenesOneAfterTheOther) {
    Timeline const timeline = of_the_show();
    ASSERT_EQ(timeline.scenes.size(), scores::all().size());
    for (std::size_t i = 0; i < timeline.scenes.size(); ++i) {
        EXPECT_EQ(timeline.scenes[i].title, scores::all()[i].title);
        EXPECT_EQ(timeline.scenes[i].first, scores::first_beat(i));
        EXPECT_EQ(timeline.scenes[i].beats, scores::all()[i].length);
    }
    EXPECT_EQ(timeline.Beats(), scores::show_beats);
    EXPECT_EQ(timeline.SceneAt(15).title, "Intro");
    EXPECT_EQ(timeline.SceneAt(16).title, "Gun Girl");
    EXPECT_EQ(timeline.SceneAt(scores::show_beats).title, "Greets");
}

TEST(TimelineModel, HasEveryCueAtItsPlace) {
    Timeline const timeline = of_the_show();
    for (std::size_t i = 0; i < timeline.scenes.size(); ++i) {
        Score const& score = scores::all()[i];
        SCOPED_TRACE(score.title);
        auto const& cues = timeline.scenes[i].cues;
        ASSERT_EQ(cues.size(), score.windows.size());
        for (std::size_t k = 0; k < cues.size(); ++k) {
            EXPECT_EQ(cues[k].kind, score.windows[k].name);
            EXPECT_EQ(cues[k].from, scores::first_beat(i) + score.windows[k].start);
            EXPECT_EQ(cues[k].beats, score.windows[k].length);
        }
    }
}

TEST(TimelineModel, HasEveryEventAtItsTime) {
    Timeline const timeline = of_the_show();
    for (std::size_t i = 0; i < timeline.scenes.size(); ++i) {
        Score const& score = scores::all()[i];
        SCOPED_TRACE(score.title);
        std::vector<scores::Event> expected;
        for (auto const& blinker : score.blinks) expected.insert(expected.end(), blinker.begin(), blinker.end());
        std::vector<scores::Event> events;
        for (TimelineEvent const& event : timeline.scenes[i].events) {
            ASSERT_EQ(event.at % 10, 0);
            events.push_back({(event.at - scores::first_beat(i) * one_beat) / 10, event.type, event.value});
        }
        EXPECT_THAT(events, testing::ElementsAreArray(expected));
    }
}

TEST(TimelineModel, NamesTheModelsThatAreShown) {
    Timeline const timeline = of_the_show();
    EXPECT_THAT(labels(timeline, 0, "ShowModel"),
                testing::ElementsAre("We", "Know", "What", "We", "Are", "Doing", "QUILLONx"));
    EXPECT_THAT(labels(timeline, 5, "SimpleModel"),
                testing::ElementsAre("QUILLONx-title", "HARD-title", "SILENCE-title"));
    EXPECT_THAT(labels(timeline, 1, "BrokenModel"), testing::ElementsAre("gungirl_silhouette"));
    EXPECT_THAT(labels(timeline, 4, "PulseWire"), testing::ElementsAre("PulseWire"));
}

TEST(TimelineModel, LaysNoTwoCuesOfALaneOverEachOther) {
    for (TimelineScene const& scene : of_the_show().scenes) {
        SCOPED_TRACE(scene.title);
        int most = 0;
        for (int beat = scene.first; beat < scene.End(); ++beat) {
            std::vector<int> lanes;
            for (TimelineCue const& cue : scene.cues) {
                if (beat >= cue.from && beat < cue.from + cue.beats) lanes.push_back(cue.lane);
            }
            std::sort(lanes.begin(), lanes.end());
            EXPECT_TRUE(std::adjacent_find(lanes.begin(), lanes.end()) == lanes.end()) << "beat " << beat;
            most = std::max(most, static_cast<int>(lanes.size()));
            for (int const lane : lanes) EXPECT_LT(lane, scene.lanes);
        }
        EXPECT_EQ(scene.lanes, most) << "and takes no more of them than it must";
    }
}

TEST(TimelineModel, ShowsTheEventsOfTheCalmShowThere) {
    support::WithLook const calm({.calm = true});
    std::size_t const calm_events = of_the_show().scenes.at(5).events.size();
    EXPECT_GT(calm_events, scores::all()[5].blinks[0].size());
}

TEST(TimelineModel, TellsTheKindsOfCuesOnceEach) {
    EXPECT_THAT(of_the_show().Kinds(),
                testing::ElementsAre("Blinker", "ShowModel", "SimpleModel", "BrokenModel", "FlashBackground",
                                     "GyroFuck", "PulseWire", "TextureMountain", "TorusFountain"));
}

TEST(Waveform, IsAsLongAsTheSoundtrackAndLoudWhereThatIs) {
    support::TempFolder const folder;
    // Two beats of half a second; one sample at three quarters of full scale in the third part of the second beat.
    std::string bytes = support::wave(8000, 8000);
    std::size_t const sample = 4000 + 2 * 4000 / Waveform::per_beat + 10;
    bytes[44 + 2 * sample + 1] = 0x60;
    Waveform const waveform = read_waveform(folder.Write("a.wav", bytes), 0.5);
    ASSERT_EQ(waveform.parts.size(), 2u * Waveform::per_beat);
    for (std::size_t i = 0; i < waveform.parts.size(); ++i) {
        bool const loud = i == Waveform::per_beat + 2;
        EXPECT_FLOAT_EQ(waveform.parts[i].peak, loud ? 0.75f : 0.0f) << i;
        EXPECT_NEAR(waveform.parts[i].mean, loud ? 0.75 / std::sqrt(250) : 0, 1e-6) << i;
    }
}

TEST(Waveform, IsEmptyWithoutASoundtrack) {
    EXPECT_TRUE(read_waveform("missing.ogg", 0.5).parts.empty());
    EXPECT_TRUE(read_waveform("data/weknow.asc", 0.5).parts.empty());
}
