// SPDX-License-Identifier: MIT
#pragma once

#include <EGL/egl.h>
#include <string>

/// An OpenGL context without a window or an X server, through EGL, current on the thread that opened it. It has no
/// picture to draw into; use a Framebuffer.
///
/// Tried in this order: Mesa's surfaceless platform, then every device that EGL lists, then the default display; on
/// each with no surface at all, then with a small pbuffer. On a machine with several drivers the variable
/// __EGL_VENDOR_LIBRARY_FILENAMES chooses one.
class OffscreenContext {
public:
    OffscreenContext() = default;
    OffscreenContext(OffscreenContext const&) = delete;
    OffscreenContext& operator=(OffscreenContext const&) = delete;
    ~OffscreenContext();

    enum class Api { Desktop, Embedded };

    /// Makes the context and makes it current.
    /// @param api  OpenGL with its fixed functions, or OpenGL ES 3
    /// @return false if no driver offers one
    bool Open(Api api = Api::Desktop);

    /// The driver's name of the renderer, for example "llvmpipe (LLVM 15.0.6, 256 bits)"; "" before Open.
    static std::string Renderer();

private:
    bool OpenOn(EGLDisplay candidate, Api api);
    bool MakeCurrent(EGLConfig config);
    void Close();

    EGLDisplay display = EGL_NO_DISPLAY;
    EGLContext context = EGL_NO_CONTEXT;
    EGLSurface surface = EGL_NO_SURFACE;
};
