// SPDX-License-Identifier: MIT
#include "effekt/showmodel.h"

#include "tests/effekt/support.h"

#include <cmath>

using effect_test::state_at;
using testing::HasSubstr;

namespace {

using Type = kore::BlinkerInterface::BlinkerType;

class ShowModel : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("thing.asc", "thing");
        models = Library();
    }

    /// One that starts at 2 s, swings for 0.5 s and stands for 3 s.
    std::unique_ptr<effect::ShowModel> Timed(float start = 2, float swing = 0.5f, float show = 3) {
        auto model = std::make_unique<effect::ShowModel>(models, "thing", "");
        NameLists(*models, "thing");
        model->SetStartTime(start);
        model->SetTransitionSpeed(swing);
        model->SetShowTime(show);
        return model;
    }

    static std::string Drawn(effect::ShowModel& model) {
        gl::clear_log();
        model.InternalDraw();
        return gl::calls();
    }

    /// The calls while it swings in, stands or swings away, with the default hinge.
    static std::string Swung(std::string const& angle, bool leaving) {
        std::string const hinge = leaving ? "-5" : "5";
        std::string const back = leaving ? "5" : "-5";
        return "PushMatrix Translate(0," + hinge + ",0) PushMatrix Color(1,1,1) Rotate(" + angle +
               ",1,0,0) Translate(0," + back +
               ",0) PushMatrix Scale(1,1,1) CallList(thing) PopMatrix Color(0,0,0) PushMatrix Scale(1,1,1) "
               "CallList(thing-lines) PopMatrix PopMatrix PopMatrix";
    }

    kore::AscModel_ptr models;
};

struct Moment {
    char const* what;
    float t;
    char const* angle;
    bool leaving;
};

void expect_moments(effect::ShowModel& model, std::initializer_list<Moment> moments,
                    std::string (*swung)(std::string const&, bool)) {
    for (Moment const& moment : moments) {
        SCOPED_TRACE(testing::Message() << moment.what << ", at " << moment.t << " s");
        model.UpdateLogic(state_at(moment.t));
        gl::clear_log();
        model.InternalDraw();
        EXPECT_EQ(gl::calls(), swung(moment.angle, moment.leaving));
    }
}

TEST_F(ShowModel, SwingsInStandsAndSwingsAway) {
    expect_moments(*Timed(),
                   {
                       {"upright before its start", 0, "0", false},
                       {"just before its start", 1.999f, "0", false},
                       {"at its start", 2, "120", false},
                       {"swinging in", 2.125f, "90", false},
                       {"half in", 2.25f, "60", false},
                       {"nearly in", 2.375f, "30", false},
                       {"in", 2.5f, "0", false},
                       {"standing", 4, "0", false},
                       {"beginning to leave", 5.5f, "0", true},
                       {"leaving", 5.625f, "-30", true},
                       {"half away", 5.75f, "-60", true},
                       {"away", 6, "-120", true},
                       {"and staying away", 1000000, "-120", true},
                   },
                   Swung);
}

TEST_F(ShowModel, DefaultsToAShowOfFiveSecondsAndSwingsOfOne) {
    effect::ShowModel model(models, "thing", "");
    NameLists(*models, "thing");
    EXPECT_STREQ(model.Name(), "ShowModel");
    EXPECT_EQ(Drawn(model), Swung("0", false));
    expect_moments(model,
                   {
                       {"at its start", 0, "120", false},
                       {"half in", 0.5f, "60", false},
                       {"in", 1, "0", false},
                       {"still standing", 5.9f, "0", false},
                       {"beginning to leave", 6, "0", true},
                       {"half away", 6.5f, "-60", true},
                       {"away", 7, "-120", true},
                   },
                   Swung);
}

TEST_F(ShowModel, FollowsItsFormulaOnEveryFrame) {
    auto const model = Timed(1.25f, 0.75f, 2);
    for (int frame = 0; frame < 360; ++frame) {
        float const t = static_cast<float>(frame) / 60;
        model->UpdateLogic(state_at(t));
        Drawn(*model);
        float angle = 0;
        if (t >= 1.25f && t < 2) angle = 120 - 120 * ((t - 1.25f) / 0.75f);
        if (t >= 4) angle = -120 * std::min(1.0f, (t - 4) / 0.75f);
        char expected[40];
        std::snprintf(expected, sizeof expected, "Rotate(%g,1,0,0)",
                      static_cast<double>(angle) + 0.0); // no sign on a zero
        ASSERT_EQ(gl::call_list()[4], expected) << "at " << t << " s";
    }
}

TEST_F(ShowModel, NeverComesBackToTheFirstHinge) {
    auto const model = Timed();
    model->UpdateLogic(state_at(7));
    expect_moments(*model, {{"played again", 2, "120", true}, {"standing", 3, "0", true}}, Swung);
}

TEST_F(ShowModel, JumpsAwayWithoutASwing) {
    expect_moments(*Timed(2, 0, 3),
                   {
                       {"at its start", 2, "0", false},
                       {"standing", 4.9f, "0", false},
                       {"after its show", 5.1f, "-120", true},
                   },
                   Swung);
}

TEST_F(ShowModel, DividesZeroByZeroAtTheEndOfAShowWithoutASwing) {
    auto const model = Timed(2, 0, 3);
    model->UpdateLogic(state_at(5));
    EXPECT_THAT(Drawn(*model), HasSubstr("nan,1,0,0)"));
}

TEST_F(ShowModel, TurnsAboutAHingeOfItsOwn) {
    auto const model = Timed();
    model->SetStartPos({1, 2, 3});
    model->SetEndPos({7, 8, 9}); // changes nothing
    model->SetScale({4, 5, 6});
    model->UpdateLogic(state_at(2.25f));
    EXPECT_EQ(Drawn(*model),
              "PushMatrix Translate(1,2,3) PushMatrix Color(1,1,1) Rotate(60,1,0,0) Translate(-1,-2,-3) PushMatrix "
              "Scale(4,5,6) CallList(thing) PopMatrix Color(0,0,0) PushMatrix Scale(4,5,6) CallList(thing-lines) "
              "PopMatrix PopMatrix PopMatrix");
    model->UpdateLogic(state_at(5.75f));
    EXPECT_EQ(Drawn(*model),
              "PushMatrix Translate(-1,-2,-3) PushMatrix Color(1,1,1) Rotate(-60,1,0,0) Translate(1,2,3) PushMatrix "
              "Scale(4,5,6) CallList(thing) PopMatrix Color(0,0,0) PushMatrix Scale(4,5,6) CallList(thing-lines) "
              "PopMatrix PopMatrix PopMatrix");
    EXPECT_EQ(gl::model_view_depth(), 1u);
}

TEST_F(ShowModel, KeepsItsHingeStillWhileItSwings) {
    auto const model = Timed();
    for (float const t : {2.f, 2.1f, 2.3f, 3.f, 5.6f, 6.f}) {
        SCOPED_TRACE(testing::Message() << "at " << t << " s");
        model->UpdateLogic(state_at(t));
        Drawn(*model);
        double const hinge = t > 5 ? -5 : 5;
        auto const seen = gl::transform(gl::draws()[0].model_view, 0, hinge, 0);
        EXPECT_NEAR(seen[1], hinge, 1e-5);
        EXPECT_NEAR(seen[2], 0, 1e-5);
    }
}

TEST_F(ShowModel, DrawsItsFacesWhateverTheSolidFlagSaysAndItsLinesByTheirs) {
    auto const model = Timed();
    model->DrawSolid(false);
    model->Blink(Type::Solid, 0);
    EXPECT_EQ(Drawn(*model), Swung("0", false));
    model->Blink(Type::Wireframe, 0);
    EXPECT_EQ(Drawn(*model), "PushMatrix Translate(0,5,0) PushMatrix Color(1,1,1) Rotate(0,1,0,0) Translate(0,-5,0) "
                             "PushMatrix Scale(1,1,1) CallList(thing) PopMatrix PopMatrix PopMatrix");
    model->DrawWireframe(true);
    EXPECT_EQ(Drawn(*model), Swung("0", false));
}

TEST_F(ShowModel, UsesAModelThatTheLibraryHolds) {
    models->LoadModel("thing.asc");
    effect::ShowModel(models, "thing", "gone.asc");
    EXPECT_EQ(models->size(), 1u);
}

TEST_F(ShowModel, TellsTheListOfItsFaces) {
    effect::ShowModel const model(models, "thing", "");
    EXPECT_EQ(models->NameOf(model.FaceList()), "thing");
}

using ShowModelDeathTest = ShowModel;

TEST_F(ShowModelDeathTest, EndsTheProgramWithoutItsModel) {
    WriteMesh("other.asc", "other");
    ExpectDeathWithoutModel<effect::ShowModel>(models, "effekt/showmodel.cpp", "effect::ShowModel::ShowModel");
}

} // namespace
