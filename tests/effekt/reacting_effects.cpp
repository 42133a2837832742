// SPDX-License-Identifier: MIT
#include "tests/effekt/reacting_effects.h"

#include "effekt/brokenmodel.h"
#include "effekt/flashbackground.h"
#include "effekt/gyrofuck.h"
#include "effekt/modelswapper.h"
#include "effekt/pulsewire.h"
#include "effekt/showmodel.h"
#include "effekt/simplemodel.h"
#include "effekt/spikeball.h"
#include "effekt/texturemountain.h"
#include "effekt/torusfountain.h"

namespace effect_test {

namespace {

using Models = kore::AscModel_ptr;

template<typename Effect, typename... Arguments>
Reacting made(Arguments&&... arguments) {
    auto effect = std::make_shared<Effect>(std::forward<Arguments>(arguments)...);
    return {effect, effect};
}

Reacting wire(Models const& models) {
    auto spline = std::make_shared<kore::CatmullRom>();
    spline->AddSplinePoint({1, 2, 3});
    return made<effect::PulseWire>(spline, models);
}

} // namespace

std::vector<Kind> const& all_kinds() {
    // name             made by                                                            counts down, starts
    // clang-format off
    static std::vector<Kind> const kinds = {
        {"SimpleModel",     [](Models const& m) { return made<effect::SimpleModel>(m, "thing", ""); }, true,  true},
        {"FlashBackground", [](Models const&) { return made<effect::FlashBackground>(); },             true,  true},
        {"ModelSwapper",    [](Models const&) { return made<effect::ModelSwapper>("thing"); },         true,  false},
        {"BrokenModel",     [](Models const& m) { return made<effect::BrokenModel>(m, "thing", ""); }, true,  true},
        {"TextureMountain", [](Models const&) { return made<effect::TextureMountain>(); },             true,  true},
        {"PulseWire",       wire,                                                                      true,  true},
        {"SpikeBall",       [](Models const&) { return made<effect::SpikeBall>(); },                   false, false},
        {"GyroFuck",        [](Models const& m) { return made<effect::GyroFuck>(m); },                 true,  true},
        {"TorusFountain",   [](Models const& m) { return made<effect::TorusFountain>(m); },            true,  true},
        {"ShowModel",       [](Models const& m) { return made<effect::ShowModel>(m, "thing", ""); },   true,  true},
    };
    // clang-format on
    return kinds;
}

std::string kind_name(testing::TestParamInfo<Kind> const& info) { return info.param.name; }

ReactingTest::ReactingTest() : there(Root()) {
    gl::reset(gl::Logging::Sums);
    for (char const* const object : {"thing", "torus2", "donut2"}) WriteMesh(std::string(object) + ".asc", object);
}

} // namespace effect_test
