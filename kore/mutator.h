// SPDX-License-Identifier: MIT
#pragma once

#include "kore/entity.h"
#include "kore/object.h"

#include <memory>

namespace kore {

/// Sets one property of an entity, once per frame, as a function of the scene's time.
class Mutator : public Object {
public:
    /// @param entity  the enabler's entity; acted on through its virtual setters only
    /// @param state   time and beats of the current scene
    virtual void Do(std::shared_ptr<Entity>& entity, StateData const& state) = 0;

protected:
    Mutator() = default;
    Mutator(Mutator const&) = default;
    Mutator& operator=(Mutator const&) = default;
    ~Mutator() = default;
};

} // namespace kore
