// SPDX-License-Identifier: MIT
#pragma once

namespace kore {

/// Root of the engine's polymorphic classes: anything that has a name.
/// No class of the engine has a virtual destructor; shared pointers are made from the most derived type.
class Object {
public:
    /// @return the class name, or for a Scene the scene's own name; valid as long as the object
    virtual char const* Name() = 0;

protected:
    Object() = default;
    Object(Object const&) = default;
    Object& operator=(Object const&) = default;
    ~Object() = default;
};

} // namespace kore
