// SPDX-License-Identifier: MIT
#include "tools/record/timetable.h"

#include <gtest/gtest.h>

namespace {

class Nothing final : public kore::Entity {
public:
    char const* Name() override { return "Nothing"; }
    void InternalDraw() override {}
    void UpdateLogic(kore::StateData const&) override {}
};

constexpr SceneEntry entries[] = {
    {"first", "The First", nullptr, {0, 0.5f, 2.125f, 3, 7.999f}},
    {"second", "Second", nullptr, {1, 2, 3, 4, 5}},
};

Timetable two_scenes() {
    kore::Demo demo(1);
    for (SceneEntry const& entry : entries) {
        auto scene = std::make_shared<kore::Scene>(entry.title);
        scene->AddEnabler(std::make_shared<kore::Enabler>(std::make_shared<Nothing>(), 0, 8, 1.0f, true));
        demo.AddScene(scene);
    }
    return make_timetable(demo, entries);
}

} // namespace

TEST(Timetable, PutsTheScenesOneAfterTheOther) {
    Timetable const timetable = two_scenes();
    ASSERT_EQ(timetable.size(), 2u);
    EXPECT_EQ(timetable[0].name, "first");
    EXPECT_EQ(timetable[0].title, "The First");
    EXPECT_EQ(timetable[0].moments, (std::vector<Millibeats>{0, 500, 2125, 3000, 7999}));
    EXPECT_EQ(timetable[0].Begin(), 0);
    EXPECT_EQ(timetable[0].End(), 8000);
    EXPECT_EQ(timetable[1].Begin(), 8000);
    EXPECT_EQ(timetable[1].End(), 16000);
    EXPECT_EQ(scene_list(timetable), "first, second");
}

TEST(Timetable, FindsASceneByNameOrTitleInAnyCase) {
    Timetable const timetable = two_scenes();
    ScenePlace const* const first = timetable.data();
    for (char const* const name : {"first", "The First", "THE FIRST"}) EXPECT_EQ(find_scene(timetable, name), first);
    for (char const* const name : {"second", "Second"}) EXPECT_EQ(find_scene(timetable, name), first + 1);
    for (char const* const name : {"", "the", "seconds"}) EXPECT_EQ(find_scene(timetable, name), nullptr);
}

TEST(Timetable, FindsTheSceneOfAMoment) {
    Timetable const timetable = two_scenes();
    EXPECT_EQ(scene_at(timetable, 0), timetable.data());
    EXPECT_EQ(scene_at(timetable, 7999), timetable.data());
    EXPECT_EQ(scene_at(timetable, 8000), timetable.data() + 1);
    EXPECT_EQ(scene_at(timetable, 16000), nullptr);
}
