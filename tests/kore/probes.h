// SPDX-License-Identifier: MIT
#pragma once

#include "kore/enabler.h"
#include "tests/support/glrecorder.h"

#include <GL/gl.h>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <vector>

/// Test doubles that record what the engine does with them.
namespace probes {

constexpr float beat = 60.0f / 132; // seconds

/// What happened, in order; shared by the doubles of one test.
using Events = std::vector<std::string>;

/// An entity that draws one list, number 7, shown as its name.
class Thing final : public kore::Entity {
public:
    explicit Thing(std::string name_ = "thing", Events* events_ = nullptr) : name(std::move(name_)), events(events_) {}

    char const* Name() override { return name.c_str(); }
    void InternalDraw() override {
        gl::name_list(7, name);
        glCallList(7);
    }
    void UpdateLogic(kore::StateData const& state) override {
        ++updates;
        last = state;
        if (events) events->push_back(name);
    }

    int updates = 0;
    kore::StateData last;

private:
    std::string name;
    Events* events;
};

/// A mutator that sets x to one value.
class SetX final : public kore::Mutator {
public:
    SetX(std::string name_, float x_, Events* events_ = nullptr) : name(std::move(name_)), x(x_), events(events_) {}

    char const* Name() override { return name.c_str(); }
    void Do(std::shared_ptr<kore::Entity>& entity, kore::StateData const&) override {
        entity->SetPos({x, 0, 0});
        if (events) events->push_back(name);
    }

private:
    std::string name;
    float x;
    Events* events;
};

inline kore::StateData at_beat(int beat_count) {
    kore::StateData state;
    state.beat_count = beat_count;
    state.time = static_cast<float>(beat_count) * beat;
    return state;
}

inline kore::StateData at_time(float seconds) {
    kore::StateData state;
    state.time = seconds;
    return state;
}

MATCHER_P3(Is, x, y, z, "") {
    auto const close = [](float a, double b) { return std::abs(a - static_cast<float>(b)) < 1e-5f; };
    *result_listener << "(" << arg.x << ", " << arg.y << ", " << arg.z << ")";
    return close(arg.x, x) && close(arg.y, y) && close(arg.z, z);
}

MATCHER_P3(IsExactly, x, y, z, "") {
    *result_listener << "(" << arg.x << ", " << arg.y << ", " << arg.z << ")";
    return arg.x == static_cast<float>(x) && arg.y == static_cast<float>(y) && arg.z == static_cast<float>(z);
}

} // namespace probes
