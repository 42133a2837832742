// SPDX-License-Identifier: MIT
#pragma once

#include "kore/blinkerinterface.h"
#include "kore/entity.h"
#include "tests/effekt/support.h"

#include <functional>
#include <memory>

namespace effect_test {

/// One object, by its two interfaces.
struct Reacting {
    std::shared_ptr<kore::Entity> entity;
    std::shared_ptr<kore::BlinkerInterface> blinker;
};

/// One of the ten effects that react to events.
struct Kind {
    std::string name;
    std::function<Reacting(kore::AscModel_ptr const&)> make;
    bool counts_down; ///< its update runs the strobe
    bool starts;      ///< after its update a Blinker reaches it
};

/// All ten, in a fixed order.
std::vector<Kind> const& all_kinds();

/// Its name, for gtest.
std::string kind_name(testing::TestParamInfo<Kind> const& info);

/// Makes them; runs in a folder with a "data/" of small meshes, and logs sums only.
class ReactingTest : public EffectTest, public testing::WithParamInterface<Kind> {
protected:
    ReactingTest();

    Reacting Make() const { return GetParam().make(Library()); }

private:
    WorkingFolder there;
};

} // namespace effect_test
