// SPDX-License-Identifier: MIT
// The other calls of the stand-in: primitives, display lists, state and textures.

#include "tests/support/glstate.h"

#include <GL/glu.h>

namespace gl::detail {

namespace {

struct Word {
    GLenum value;
    std::string_view text;
};

// clang-format off
constexpr Word primitives[] = {
    {GL_LINES,     "LINES"},
    {GL_TRIANGLES, "TRIANGLES"},
    {GL_QUADS,     "QUADS"},
    {GL_POLYGON,   "POLYGON"},
};

constexpr Word words[] = {
    {GL_MODELVIEW,                   "MODELVIEW"},
    {GL_PROJECTION,                  "PROJECTION"},
    {GL_TEXTURE_2D,                  "TEXTURE_2D"},
    {GL_DEPTH_TEST,                  "DEPTH_TEST"},
    {GL_SCISSOR_TEST,                "SCISSOR_TEST"},
    {GL_BLEND,                       "BLEND"},
    {GL_CULL_FACE,                   "CULL_FACE"},
    {GL_COLOR_MATERIAL,              "COLOR_MATERIAL"},
    {GL_PERSPECTIVE_CORRECTION_HINT, "PERSPECTIVE_CORRECTION_HINT"},
    {GL_NICEST,                      "NICEST"},
    {GL_SRC_ALPHA,                   "SRC_ALPHA"},
    {GL_ONE_MINUS_SRC_ALPHA,         "ONE_MINUS_SRC_ALPHA"},
    {GL_SMOOTH,                      "SMOOTH"},
    {GL_COMPILE,                     "COMPILE"},
    {GL_TEXTURE_MAG_FILTER,          "TEXTURE_MAG_FILTER"},
    {GL_TEXTURE_MIN_FILTER,          "TEXTURE_MIN_FILTER"},
    {GL_NEAREST,                     "NEAREST"},
    {GL_LINEAR,                      "LINEAR"},
    {GL_LINEAR_MIPMAP_NEAREST,       "LINEAR_MIPMAP_NEAREST"},
    {GL_RGB,                         "RGB"},
    {GL_UNSIGNED_BYTE,               "UNSIGNED_BYTE"},
};
// clang-format on

void begin() {
    if (state().in_primitive) return raise("INVALID_OPERATION", "Begin");
    state().in_primitive = true;
}

void end() {
    if (!state().in_primitive) return raise("INVALID_OPERATION", "End");
    state().in_primitive = false;
}

/// State calls are refused inside a primitive.
void state_call(std::string_view name) {
    if (state().in_primitive) raise("INVALID_OPERATION", name);
}

void set_color(float r, float g, float b, float a) { state().color = {r, g, b, a}; }

std::string two_words(GLenum a, GLenum b) { return std::string(word(a)) + ',' + std::string(word(b)); }

} // namespace

std::string_view word(GLenum value, bool primitive) {
    if (primitive) {
        for (Word const& w : primitives) {
            if (w.value == value) return w.text;
        }
    }
    for (Word const& w : words) {
        if (w.value == value) return w.text;
    }
    return "unknown";
}

} // namespace gl::detail

using namespace gl::detail;

extern "C" {

void glBegin(GLenum mode) {
    bool const now = note("Begin", {}, word(mode, true));
    if (now) {
        begin();
    } else {
        state().lists[state().compiling].brackets.push_back(true);
    }
}

void glEnd() {
    bool const now = note("End");
    if (now) {
        end();
    } else {
        state().lists[state().compiling].brackets.push_back(false);
    }
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z) { note("Vertex", {x, y, z}); }
void glVertex3fv(GLfloat const* v) { note("Vertex", {v[0], v[1], v[2]}); }

void glColor3f(GLfloat r, GLfloat g, GLfloat b) {
    if (note("Color", {r, g, b})) set_color(r, g, b, 1);
}
void glColor3fv(GLfloat const* v) {
    if (note("Color", {v[0], v[1], v[2]})) set_color(v[0], v[1], v[2], 1);
}
void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a) {
    if (note("Color", {r, g, b, a})) set_color(r, g, b, a);
}

GLuint glGenLists(GLsizei range) {
    note("GenLists", {static_cast<double>(range)});
    GLuint const first = state().next_list;
    state().next_list += static_cast<GLuint>(range);
    return first;
}

void glNewList(GLuint list, GLenum mode) {
    note("NewList", {static_cast<double>(list)}, word(mode), &empty_sum);
    if (state().compiling || list == 0) return raise(list ? "INVALID_OPERATION" : "INVALID_VALUE", "NewList");
    state().lists[list] = List();
    state().compiling = list;
}

void glEndList() {
    bool const compiling = state().compiling != 0;
    auto const compiled = state().lists.find(state().compiling);
    state().compiling = 0;
    note("EndList", {}, {}, compiling ? &compiled->second.sum : nullptr);
    if (!compiling) raise("INVALID_OPERATION", "EndList");
}

void glCallList(GLuint list) {
    State& s = state();
    auto const named = s.names.find(list);
    auto const found = s.lists.find(list);
    std::uint64_t const* const sum = found == s.lists.end() ? nullptr : &found->second.sum;
    bool const now = named == s.names.end() ? note("CallList", {static_cast<double>(list)}, {}, sum)
                                            : note("CallList", {}, named->second, sum);
    if (!now) return;
    if (s.logging == gl::Logging::Text) {
        std::string const name = named == s.names.end() ? std::to_string(list) : named->second;
        s.drawn.push_back({list, name, s.model_view.back(), s.color, s.in_primitive});
    }
    // Each command of the list acts as if issued here (OpenGL 1.1, section 5.4).
    if (found == s.lists.end()) return;
    for (bool const opens : found->second.brackets) opens ? begin() : end();
}

void glEnable(GLenum cap) {
    if (note("Enable", {}, word(cap))) state_call("Enable");
}
void glDisable(GLenum cap) {
    if (note("Disable", {}, word(cap))) state_call("Disable");
}
void glClear(GLbitfield mask) {
    std::string what = mask & GL_COLOR_BUFFER_BIT ? "COLOR" : "";
    if (mask & GL_DEPTH_BUFFER_BIT) what += what.empty() ? "DEPTH" : "|DEPTH";
    if (note("Clear", {}, what)) state_call("Clear");
}
void glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a) {
    if (note("ClearColor", {r, g, b, a})) state_call("ClearColor");
}
void glClearDepth(GLclampd depth) {
    if (note("ClearDepth", {depth})) state_call("ClearDepth");
}
void glDepthMask(GLboolean flag) {
    if (note("DepthMask", {static_cast<double>(flag)})) state_call("DepthMask");
}
void glHint(GLenum target, GLenum mode) {
    if (note("Hint", {}, two_words(target, mode))) state_call("Hint");
}
void glBlendFunc(GLenum source, GLenum destination) {
    if (note("BlendFunc", {}, two_words(source, destination))) state_call("BlendFunc");
}
void glShadeModel(GLenum mode) {
    if (note("ShadeModel", {}, word(mode))) state_call("ShadeModel");
}
void glLineWidth(GLfloat width) {
    if (note("LineWidth", {width})) state_call("LineWidth");
}
void glViewport(GLint x, GLint y, GLsizei width, GLsizei height) {
    bool const now = note("Viewport", {static_cast<double>(x), static_cast<double>(y), static_cast<double>(width),
                                       static_cast<double>(height)});
    if (now) state_call("Viewport");
}
void glScissor(GLint x, GLint y, GLsizei width, GLsizei height) {
    bool const now = note("Scissor", {static_cast<double>(x), static_cast<double>(y), static_cast<double>(width),
                                      static_cast<double>(height)});
    if (now) state_call("Scissor");
}
GLubyte const* glGetString(GLenum) { return nullptr; }
void glPushAttrib(GLbitfield mask) {
    std::string what = mask & GL_COLOR_BUFFER_BIT ? "COLOR" : "";
    if (mask & GL_SCISSOR_BIT) what += what.empty() ? "SCISSOR" : "|SCISSOR";
    if (note("PushAttrib", {}, what)) state_call("PushAttrib");
}
void glPopAttrib() {
    if (note("PopAttrib")) state_call("PopAttrib");
}

void glBindTexture(GLenum target, GLuint texture) { note("BindTexture", {static_cast<double>(texture)}, word(target)); }
void glTexParameterf(GLenum, GLenum name, GLfloat value) {
    note("TexParameterf", {}, two_words(name, static_cast<GLenum>(value)));
}
void glTexParameteri(GLenum, GLenum name, GLint value) {
    note("TexParameteri", {}, two_words(name, static_cast<GLenum>(value)));
}
void glTexImage2D(GLenum, GLint level, GLint components, GLsizei width, GLsizei height, GLint border, GLenum, GLenum,
                  void const* texels) {
    // Reads what a driver would read: three bytes a texel.
    auto const* bytes = static_cast<unsigned char const*>(texels);
    double sum = 0;
    for (long i = 0; i < 3L * width * height; ++i) sum += bytes[i];
    note("TexImage2D", {static_cast<double>(level), static_cast<double>(components), static_cast<double>(width),
                        static_cast<double>(height), static_cast<double>(border), sum});
}
GLint gluBuild2DMipmaps(GLenum, GLint components, GLsizei width, GLsizei height, GLenum, GLenum, void const* texels) {
    auto const* bytes = static_cast<unsigned char const*>(texels);
    double sum = 0;
    for (long i = 0; i < 3L * width * height; ++i) sum += bytes[i];
    note("Build2DMipmaps",
         {static_cast<double>(components), static_cast<double>(width), static_cast<double>(height), sum});
    return 0;
}

} // extern "C"
