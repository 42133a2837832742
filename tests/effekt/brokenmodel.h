// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/brokenmodel.h"
#include "tests/effekt/support.h"

#include <cstdlib>

/// What the tests of the broken model share.
namespace broken {

using Type = kore::BlinkerInterface::BlinkerType;
using Broken = effect::BrokenModel;

constexpr unsigned int seed = 215517;

/// What one piece does per second.
struct Piece {
    float turn[3];
    float shift[3];
};

/// The next piece of the generator's sequence, with the default ranges: turns first, then shifts.
inline Piece next_piece() {
    auto const draw = [](float range) {
        int const steps = static_cast<int>((range + range) * 100);
        return static_cast<float>(std::rand() % steps) / 100 - range;
    };
    Piece piece{};
    for (float& turn : piece.turn) turn = draw(20);
    piece.shift[0] = draw(3);
    piece.shift[1] = draw(3);
    piece.shift[2] = draw(5);
    return piece;
}

inline std::string number(float value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(value) + 0.0);
    return text;
}

/// The calls that put a piece in its place.
inline std::string moved(Piece const& p, float amount) {
    return "PushMatrix Translate(" + number(amount * p.shift[0]) + ',' + number(amount * p.shift[1]) + ',' +
           number(amount * p.shift[2]) + ") PushMatrix Rotate(" + number(amount * p.turn[0]) + ",1,0,0) Rotate(" +
           number(amount * p.turn[1]) + ",0,1,0) Rotate(" + number(amount * p.turn[2]) + ",0,0,1) ";
}

// Of the two triangles: their lists are 1 and 2, their outlines 3 and 4.
constexpr char const* faces[] = {"Color(1,1,1) CallList(1) ", "Color(1,1,1) CallList(2) "};
constexpr char const* lines[] = {"Color(0,0,0) CallList(3) ", "Color(0,0,0) CallList(4) "};

class BrokenModel : public effect_test::EffectTest {
protected:
    void SetUp() override {
        WriteMesh("thing.asc", "thing");
        models = Library();
        model = std::make_unique<Broken>(models, "thing", "");
        std::srand(seed);
        for (Piece& piece : pieces) piece = next_piece();
    }

    static std::string Drawn(Broken& of) {
        gl::clear_log();
        of.InternalDraw();
        return gl::calls();
    }
    std::string Drawn() { return Drawn(*model); }
    std::string DrawnAt(float t) {
        model->UpdateLogic(effect_test::state_at(t));
        return Drawn();
    }

    static std::string Whole(bool wireframe = true) {
        std::string calls = "PushMatrix Scale(1,1,1) PushMatrix ";
        for (std::size_t i = 0; i < 2; ++i) calls += std::string(faces[i]) + (wireframe ? lines[i] : "");
        return calls + "PopMatrix PopMatrix";
    }
    std::string Apart(float amount, bool wireframe = true) const {
        std::string calls = "PushMatrix Scale(1,1,1) PushMatrix ";
        for (std::size_t i = 0; i < 2; ++i) {
            calls += moved(pieces[i], amount) + faces[i] + (wireframe ? lines[i] : "") + "PopMatrix PopMatrix ";
        }
        return calls + "PopMatrix PopMatrix";
    }

    kore::AscModel_ptr models;
    std::unique_ptr<Broken> model;
    Piece pieces[2];
};

} // namespace broken
