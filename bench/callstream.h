#pragma once

#include <cstdint>

/// The calls of frames as flat records, so that they can be issued again without the show.
namespace bench {

enum class Op : std::uint32_t {
    Begin,
    End,
    PushMatrix,
    PopMatrix,
    LoadIdentity,
    Clear,
    CallList,
    Translate,
    Scale,
    Rotate,
    Color,
    Vertex,
    ClearColor,
    LookAt, ///< eye; two records of Data with the centre and the up vector follow
    Data,
};

/// One call. Names, masks and enumerants are whole numbers, coordinates floats.
struct Call {
    Op op;
    union {
        std::uint32_t name;
        float value[4];
    };
};

/// What stands before the calls of a frame in a recorded stream.
struct FrameHead {
    std::uint32_t scene; ///< counted from 0
    std::uint32_t calls;
};

} // namespace bench
