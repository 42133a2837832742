// SPDX-License-Identifier: MIT
#pragma once

// Wants GL_GLEXT_PROTOTYPES defined for the whole unit: gl.h has the first version's entry points alone.
#include <GL/gl.h>

namespace fixedgl {

// clang-format off
/// The entry points of OpenGL ES 3 that the layer calls.
#define FIXEDGL_DRIVER_CALLS(CALL)                                                                                     \
    CALL(AttachShader) CALL(BindBuffer) CALL(BindTexture) CALL(BindVertexArray) CALL(BlendFunc) CALL(BufferData)       \
    CALL(Clear) CALL(ClearColor) CALL(ClearDepthf) CALL(CompileShader) CALL(CreateProgram) CALL(CreateShader)          \
    CALL(DeleteBuffers) CALL(DeleteProgram) CALL(DeleteShader) CALL(DeleteTextures) CALL(DeleteVertexArrays)           \
    CALL(DepthMask) CALL(Disable) CALL(DrawElements) CALL(Enable) CALL(EnableVertexAttribArray) CALL(GenBuffers)       \
    CALL(GenTextures) CALL(GenVertexArrays) CALL(GenerateMipmap) CALL(GetError) CALL(GetIntegerv) CALL(GetProgramiv)   \
    CALL(GetUniformLocation) CALL(LineWidth) CALL(LinkProgram) CALL(Scissor) CALL(ShaderSource) CALL(TexImage2D)       \
    CALL(TexParameteri) CALL(Uniform1i) CALL(Uniform4f) CALL(UniformMatrix4fv) CALL(UseProgram) CALL(VertexAttrib4f)   \
    CALL(VertexAttribPointer) CALL(Viewport)
// clang-format on

/// Where the layer finds them. They are called through this table because the layer defines entry points of the same
/// names itself.
struct Driver {
#define FIXEDGL_MEMBER(name) decltype(&::gl##name) name; // NOLINT(bugprone-macro-parentheses): a name
    FIXEDGL_DRIVER_CALLS(FIXEDGL_MEMBER)
#undef FIXEDGL_MEMBER
};

using EntryPoint = void (*)();

/// Fills the table.
/// @param find  gives the entry point of a name, or null; eglGetProcAddress, for one
/// @return false if one is missing
bool load(Driver& driver, EntryPoint (*find)(char const* name));

} // namespace fixedgl
