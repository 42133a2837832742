// SPDX-License-Identifier: MIT
// Textures. Without texture coordinates a texture shows its first texel everywhere (OpenGL 1.1, sections 2.7 and
// 3.8.7: the current coordinates are 0, and the texel modulates the colour).

#include "web/gl/state.h"

#include <GL/glu.h>
#include <map>

namespace fixedgl {

namespace {

struct Texture {
    GLuint name = 0; ///< the driver's
    bool has_image = false;
    bool has_mipmaps = false;
    bool wants_mipmaps = true; ///< by its filter; the initial one does

    bool IsComplete() const { return has_image && (has_mipmaps || !wants_mipmaps); }
};

struct Textures {
    bool on = false;
    GLuint bound = 0;
    std::map<GLuint, Texture> all; ///< by the program's name, which need not come from the driver
};

Textures textures;

Driver const& gl() { return state.drawing.GL(); }

/// The texture that is bound, made when it is first needed.
Texture& bound() {
    Texture& texture = textures.all[textures.bound];
    if (texture.name == 0) {
        gl().GenTextures(1, &texture.name);
        gl().BindTexture(GL_TEXTURE_2D, texture.name);
    }
    return texture;
}

/// An incomplete texture is as good as none.
void show() {
    auto const found = textures.all.find(textures.bound);
    state.drawing.SetTextured(textures.on && found != textures.all.end() && found->second.IsComplete());
}

void set_filter(GLenum name, GLint value) {
    if (name == GL_TEXTURE_MIN_FILTER) bound().wants_mipmaps = value != GL_NEAREST && value != GL_LINEAR;
    gl().TexParameteri(GL_TEXTURE_2D, name, value);
}

bool is_plain_image(GLenum target, GLint components, GLenum format, GLenum type) {
    return target == GL_TEXTURE_2D && (components == 3 || components == GL_RGB) && format == GL_RGB &&
           type == GL_UNSIGNED_BYTE;
}

} // namespace

void set_texturing(bool on) {
    textures.on = on;
    show();
}

void delete_textures() {
    for (auto const& [name, texture] : textures.all) gl().DeleteTextures(1, &texture.name);
    forget_textures();
}

void forget_textures() { textures = {}; }

} // namespace fixedgl

using namespace fixedgl;

extern "C" {

void glBindTexture(GLenum target, GLuint texture) {
    if (settled<glBindTexture>(target, texture)) return;
    if (target != GL_TEXTURE_2D) return raise(GL_INVALID_ENUM);
    state.drawing.Flush();
    textures.bound = texture;
    gl().BindTexture(GL_TEXTURE_2D, bound().name);
    show();
}

void glTexParameteri(GLenum target, GLenum name, GLint value) {
    if (settled<glTexParameteri>(target, name, value)) return;
    if (target != GL_TEXTURE_2D) return raise(GL_INVALID_ENUM);
    state.drawing.Flush();
    set_filter(name, value);
    show();
}

void glTexParameterf(GLenum target, GLenum name, GLfloat value) {
    glTexParameteri(target, name, static_cast<GLint>(value));
}

// Images are not compiled into lists: the standard would have their texels copied.
void glTexImage2D(GLenum target, GLint level, GLint components, GLsizei width, GLsizei height, GLint border,
                  GLenum format, GLenum type, void const* texels) {
    if (refused()) return;
    if (!is_plain_image(target, components, format, type)) return raise(GL_INVALID_ENUM);
    if (level != 0 || border != 0) return raise(GL_INVALID_VALUE);
    state.drawing.Flush();
    Texture& texture = bound();
    gl().TexImage2D(target, 0, GL_RGB, width, height, 0, format, type, texels);
    texture.has_image = true;
    texture.has_mipmaps = false;
    show();
}

GLint gluBuild2DMipmaps(GLenum target, GLint components, GLsizei width, GLsizei height, GLenum format, GLenum type,
                        void const* texels) {
    glTexImage2D(target, 0, components, width, height, 0, format, type, texels);
    if (state.inside || !bound().has_image) return 0;
    gl().GenerateMipmap(GL_TEXTURE_2D);
    bound().has_mipmaps = true;
    show();
    return 0;
}

} // extern "C"
