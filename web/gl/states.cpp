// SPDX-License-Identifier: MIT
// Clearing, and the state that the driver keeps.

#include "web/gl/fixedgl.h"
#include "web/gl/state.h"

namespace fixedgl {

State state;

namespace {

constexpr std::size_t first_corners = 4096; // room for a primitive's, before it grows

Driver const& gl() { return state.drawing.GL(); }

/// The driver, with everything drawn by its state so far.
Driver const& gl_after_flush() {
    state.drawing.Flush();
    return gl();
}

void switch_on(GLenum capability, bool on) { on ? gl().Enable(capability) : gl().Disable(capability); }

void set_capability(GLenum capability, bool on) {
    switch (capability) {
    case GL_TEXTURE_2D:
        return set_texturing(on);
    case GL_COLOR_MATERIAL: // does nothing without lights
    case GL_MULTISAMPLE:    // is always on
        return;
    case GL_BLEND:
        state.attributes.blend = on;
        break;
    case GL_SCISSOR_TEST:
        state.attributes.scissor = on;
        break;
    case GL_DEPTH_TEST:
    case GL_CULL_FACE:
        break;
    default:
        return raise(GL_INVALID_ENUM);
    }
    state.drawing.Flush();
    switch_on(capability, on);
}

void restore_color_buffer(Attributes const& kept) {
    switch_on(GL_BLEND, kept.blend);
    gl().BlendFunc(kept.blend_factors[0], kept.blend_factors[1]);
    auto const& c = kept.clear_color;
    gl().ClearColor(c[0], c[1], c[2], c[3]);
    state.attributes.blend = kept.blend;
    state.attributes.blend_factors = kept.blend_factors;
    state.attributes.clear_color = kept.clear_color;
}

void restore_scissors(Attributes const& kept) {
    switch_on(GL_SCISSOR_TEST, kept.scissor);
    gl().Scissor(kept.box[0], kept.box[1], kept.box[2], kept.box[3]);
    state.attributes.scissor = kept.scissor;
    state.attributes.box = kept.box;
}

/// Starts anew, whatever has become of the driver's objects.
void reset() {
    state = State();
    state.stack = &state.model_view;
    state.corners.resize(first_corners);
    state.attribute_stack.reserve(attribute_limit);
    state.model_view.Top() = state.projection.Top() = identity;
}

} // namespace

bool open(Driver const& driver, Lines lines) {
    reset();
    if (!state.drawing.Open(driver, lines)) return false;
    driver.GetIntegerv(GL_SCISSOR_BOX, state.attributes.box.data());
    return true;
}

void scale_lines(float factor) { state.drawing.ScaleLines(factor); }

void flush() {
    state.drawing.Flush();
    state.shelf.Clear(state.drawing);
}

void close() {
    for (List& list : state.lists) {
        for (Primitive& primitive : list.primitives) state.drawing.Delete(primitive.mesh);
    }
    state.shelf.Clear(state.drawing);
    delete_textures();
    state.drawing.Close();
    reset();
}

void forget() {
    forget_textures();
    reset();
}

} // namespace fixedgl

using namespace fixedgl;

extern "C" {

void glEnable(GLenum capability) {
    if (!settled<glEnable>(capability)) set_capability(capability, true);
}
void glDisable(GLenum capability) {
    if (!settled<glDisable>(capability)) set_capability(capability, false);
}

void glClear(GLbitfield mask) {
    if (settled<glClear>(mask)) return;
    constexpr GLbitfield buffers = GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT;
    if (mask & ~(buffers | GL_ACCUM_BUFFER_BIT)) return raise(GL_INVALID_VALUE);
    gl_after_flush().Clear(mask & buffers);
}

void glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) {
    if (settled<glClearColor>(r, g, b, a)) return;
    state.attributes.clear_color = {r, g, b, a};
    gl().ClearColor(r, g, b, a);
}

void glClearDepth(GLclampd depth) {
    if (!settled<glClearDepth>(depth)) gl().ClearDepthf(static_cast<float>(depth));
}

void glDepthMask(GLboolean flag) {
    if (!settled<glDepthMask>(flag)) gl_after_flush().DepthMask(flag);
}

void glBlendFunc(GLenum source, GLenum destination) {
    if (settled<glBlendFunc>(source, destination)) return;
    state.attributes.blend_factors = {source, destination};
    gl_after_flush().BlendFunc(source, destination);
}

void glHint(GLenum target, GLenum mode) {
    if (settled<glHint>(target, mode)) return;
    bool const known = target >= GL_PERSPECTIVE_CORRECTION_HINT && target <= GL_FOG_HINT;
    if (!known || mode < GL_DONT_CARE || mode > GL_NICEST) raise(GL_INVALID_ENUM);
}

void glShadeModel(GLenum mode) {
    if (!settled<glShadeModel>(mode) && mode != GL_SMOOTH) raise(GL_INVALID_ENUM);
}

void glLineWidth(GLfloat width) {
    if (settled<glLineWidth>(width)) return;
    if (!(width > 0)) return raise(GL_INVALID_VALUE);
    state.drawing.SetLineWidth(width);
}

void glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
    if (settled<glViewport>(x, y, width, height)) return;
    if (width < 0 || height < 0) return raise(GL_INVALID_VALUE);
    state.drawing.SetViewport(width, height);
    gl().Viewport(x, y, width, height);
}

void glScissor(GLint x, GLint y, GLsizei width, GLsizei height) {
    if (settled<glScissor>(x, y, width, height)) return;
    if (width < 0 || height < 0) return raise(GL_INVALID_VALUE);
    state.attributes.box = {x, y, width, height};
    gl_after_flush().Scissor(x, y, width, height);
}

void glPushAttrib(GLbitfield mask) {
    if (settled<glPushAttrib>(mask)) return;
    if (state.attribute_stack.size() == attribute_limit) return raise(GL_STACK_OVERFLOW);
    state.attribute_stack.push_back(state.attributes);
    state.attribute_stack.back().groups = mask;
}

void glPopAttrib() {
    if (settled<glPopAttrib>()) return;
    if (state.attribute_stack.empty()) return raise(GL_STACK_UNDERFLOW);
    state.drawing.Flush();
    Attributes const& kept = state.attribute_stack.back();
    if (kept.groups & GL_COLOR_BUFFER_BIT) restore_color_buffer(kept);
    if (kept.groups & GL_SCISSOR_BIT) restore_scissors(kept);
    state.attribute_stack.pop_back();
}

GLenum glGetError() {
    if (refused()) return GL_NO_ERROR;
    GLenum const error = state.error;
    state.error = GL_NO_ERROR;
    return error != GL_NO_ERROR ? error : gl().GetError();
}

} // extern "C"
