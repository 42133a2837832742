// SPDX-License-Identifier: MIT
#pragma once

#include "kore/object.h"
#include "kore/statedata.h"
#include "kore/vector.h"

namespace kore {

/// Anything that can be placed in a scene and drawn: a position and a rotation, applied around the class's own drawing.
class Entity : public Object {
public:
    /// Draws the thing itself, inside the transform that Draw has set up.
    virtual void InternalDraw() = 0;

    /// The entity's own logic, once per frame while its enabler's window is open, before the mutators.
    /// @param state  time and beats of the current scene
    virtual void UpdateLogic(StateData const& state) = 0;

    /// Position: units of the scene, initially (0, 0, 0).
    virtual void SetPos(Vector3<float> const& pos) { position = pos; }
    virtual void IncPos(Vector3<float> const& by) { position += by; }

    /// Rotation: degrees about x, y and z, initially (0, 0, 0); never wrapped.
    virtual void SetRot(Vector3<float> const& rot) { rotation = rot; }
    virtual void IncRot(Vector3<float> const& by) { rotation += by; }

    virtual Vector3<float>& GetPos() { return position; }
    virtual Vector3<float>& GetRot() { return rotation; }

    /// Translates by the position, rotates about x, then y, then z (so a vertex turns about z first), calls
    /// InternalDraw.
    virtual void Draw();

protected:
    ~Entity() = default;

private:
    Vector3<float> position{0, 0, 0};
    Vector3<float> rotation{0, 0, 0};
};

} // namespace kore
