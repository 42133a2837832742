// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/ascmodel.h"
#include "kore/entity.h"

#include <memory>
#include <string>
#include <vector>

namespace effect {

/// One named model drawn triangle by triangle, so that it can fly apart, or come together from its pieces: every piece
/// has its own straight path and turn, drawn once from a seeded generator.
class BrokenModel final : public kore::Entity, public BlinkingWireframe {
public:
    /// What one piece does per unit of the break amount (a second).
    struct Values {
        kore::Vector3<float> turn{0, 0, 0};  ///< degrees about x, y, z
        kore::Vector3<float> shift{0, 0, 0}; ///< units along x, y, z
    };

    /// Where the pieces' values come from.
    class ValueSetInterface {
    public:
        /// @param index  component of a piece: 0, 1, 2 turn about x, y, z; 3, 4, 5 shift along x, y, z
        virtual float set(int index) = 0;

        /// @return a random number in [-f, f), in steps of 0.01
        virtual float s(float f) = 0;

    protected:
        ~ValueSetInterface() = default;
    };

    /// Turns in [-20, 20), shifts in [-3, 3) and along z in [-5, 5). A scene's own set overrides set, s or both.
    class DefaultSet : public ValueSetInterface {
    public:
        float set(int index) override;

        /// @param f  at least 0.005: below, the range holds no number to draw
        float s(float f) override;
    };

    /// Reads the model's file into the per-triangle store, every time, reseeds the process-wide generator and draws the
    /// values of a DefaultSet: two broken models of one mesh fall apart alike. A model that cannot be loaded ends the
    /// program.
    /// @param model_name  object name in the library
    /// @param file_name   file to load; "" for the object name with ".asc"
    BrokenModel(kore::AscModel_ptr models, std::string const& model_name, std::string const& file_name);

    char const* Name() override { return "BrokenModel"; }
    void UpdateLogic(kore::StateData const& state) override;
    void InternalDraw() override;

    /// Besides Invert and Strobe: Wireframe and Break, which starts a run, or restarts it.
    void Blink(BlinkerType const& type, int const& value) override;

    /// @param time  seconds that closing takes, and so the amount at which scattered pieces wait; initially -1
    void SetTransitionTime(float const& time) { myTransitionTime = time; }

    /// @param direction  below 0 (initially -1): Break breaks apart; 0 or above: Break closes; 1 or above: also, the
    ///                   pieces are drawn scattered while they wait
    void SetDirection(int direction) { myDirection = direction; }

    /// Draws the outlines even while the wireframe is off.
    void KeepWireframe(bool keep) { myKeepWireframe = keep; }

    /// Scale along x, y, z; initially 1.
    void SetScale(kore::Vector3<float> const& scale) { myScale = scale; }

    std::string const& ModelName() const { return myModel->name; }

    /// Draws every piece's values again, continuing the generator's sequence.
    /// @param set  used at once and not kept; must not be null
    void ResetValues(ValueSetInterface* set);

private:
    enum State { Idle = 0, Requested = 1, Running = 2 };

    void UpdateBreaking(float t);
    void UpdateClosing(float t);
    void MovePiece(Values const& values) const;

    std::shared_ptr<kore::SingleAscModelFull> myModel;
    float myBreakStart = 0; ///< seconds of scene time
    State myState = Idle;
    float myAmount = 0;           ///< how far along their path the pieces are, seconds
    std::vector<Values> myValues; ///< one per triangle, in face order
    int myDirection = -1;
    float myTransitionTime = -1; ///< seconds
    bool myKeepWireframe = false;
    kore::Vector3<float> myScale{1, 1, 1};
};

} // namespace effect
