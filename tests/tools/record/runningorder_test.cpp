#include "tools/record/runningorder.h"

#include <gtest/gtest.h>

namespace {

class Nothing final : public kore::Entity {
public:
    char const* Name() override { return "Nothing"; }
    void InternalDraw() override {}
    void UpdateLogic(kore::StateData const&) override {}
};

RunningOrder two_scenes() {
    kore::Demo demo(1);
    for (char const* const name : {"Gun Girl", "Tunnelgate"}) {
        auto scene = std::make_shared<kore::Scene>(name);
        scene->AddEnabler(std::make_shared<kore::Enabler>(std::make_shared<Nothing>(), 0, 8, 1.0f, true));
        demo.AddScene(scene);
    }
    return running_order(demo);
}

} // namespace

TEST(RunningOrder, PutsTheScenesOneAfterTheOther) {
    RunningOrder const order = two_scenes();
    ASSERT_EQ(order.size(), 2u);
    EXPECT_EQ(order[0].name, "Gun Girl");
    EXPECT_EQ(order[0].stem, "gungirl");
    EXPECT_EQ(order[0].Begin(), 0);
    EXPECT_EQ(order[0].End(), 8000);
    EXPECT_EQ(order[1].stem, "wire") << "as its unit is called";
    EXPECT_EQ(order[1].Begin(), 8000);
    EXPECT_EQ(order[1].End(), 16000);
    EXPECT_EQ(scene_list(order), "gungirl, wire");
}

TEST(RunningOrder, FindsASceneByNameOrStemInAnyCase) {
    RunningOrder const order = two_scenes();
    for (char const* const name : {"gungirl", "Gun Girl", "GUN GIRL"}) EXPECT_EQ(find_scene(order, name), order.data());
    for (char const* const name : {"wire", "Wire", "tunnelgate"}) EXPECT_EQ(find_scene(order, name), order.data() + 1);
    for (char const* const name : {"", "gun", "wires"}) EXPECT_EQ(find_scene(order, name), nullptr);
}

TEST(RunningOrder, FindsTheSceneOfAMoment) {
    RunningOrder const order = two_scenes();
    EXPECT_EQ(scene_at(order, 0), order.data());
    EXPECT_EQ(scene_at(order, 7999), order.data());
    EXPECT_EQ(scene_at(order, 8000), order.data() + 1);
    EXPECT_EQ(scene_at(order, 16000), nullptr);
}
