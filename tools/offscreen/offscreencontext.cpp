// SPDX-License-Identifier: MIT
#include "tools/offscreen/offscreencontext.h"

#include "runtime/streams.h"

#include <EGL/eglext.h>
#include <GL/gl.h>
#include <algorithm>
#include <string_view>
#include <vector>

namespace {

// One of EGL's extension functions; null where there is none.
template<typename Function>
Function entry_point(char const* name) {
    return reinterpret_cast<Function>(eglGetProcAddress(name)); // NOLINT(*-reinterpret-cast): EGL's way
}

bool client_has(std::string_view extension) {
    char const* const all = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    return all && std::string_view(all).find(extension) != std::string_view::npos;
}

// All displays that need no window system, best first, and the default one.
std::vector<EGLDisplay> candidates() {
    std::vector<EGLDisplay> displays;
    auto const get_display = entry_point<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    if (get_display && client_has("EGL_MESA_platform_surfaceless")) {
        displays.push_back(get_display(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
    }
    auto const query_devices = entry_point<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    if (get_display && query_devices && client_has("EGL_EXT_platform_device")) {
        constexpr EGLint most = 16;
        EGLDeviceEXT devices[most];
        EGLint count = 0;
        if (!query_devices(most, devices, &count)) count = 0;
        for (EGLint i = 0; i < count; ++i) {
            displays.push_back(get_display(EGL_PLATFORM_DEVICE_EXT, devices[i], nullptr));
        }
    }
    displays.push_back(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    return displays;
}

// Every driver supports pbuffers, though not in every configuration; the second choice asks for nothing.
bool choose_config(EGLDisplay display, EGLint renderable, EGLConfig& config) {
    EGLint const with_pbuffer[] = {EGL_RENDERABLE_TYPE, renderable, EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE};
    EGLint const without[] = {EGL_RENDERABLE_TYPE, renderable, EGL_SURFACE_TYPE, 0, EGL_NONE};
    for (EGLint const* wishes : {with_pbuffer, without}) {
        EGLint count = 0;
        if (eglChooseConfig(display, wishes, &config, 1, &count) && count > 0) return true;
    }
    return false;
}

// Some drivers keep them for an older version alone, or for none. (Found by name: OpenGL ES has none to link with.)
bool has_fixed_functions() {
    auto const make = entry_point<GLuint (*)(GLsizei)>("glGenLists");
    auto const remove = entry_point<void (*)(GLuint, GLsizei)>("glDeleteLists");
    GLuint const list = make && remove ? make(1) : 0;
    if (list != 0) remove(list, 1);
    return list != 0;
}

} // namespace

OffscreenContext::~OffscreenContext() { Close(); }

bool OffscreenContext::Open(Api api) {
    Close();
    QuietStandardError const quiet; // each driver that does not work says so in lines of its own
    return std::ranges::any_of(candidates(), [&](EGLDisplay candidate) { return OpenOn(candidate, api); });
}

bool OffscreenContext::OpenOn(EGLDisplay candidate, Api api) {
    if (candidate == EGL_NO_DISPLAY || !eglInitialize(candidate, nullptr, nullptr)) return false;
    display = candidate;
    EGLConfig config = nullptr;
    bool const desktop = api == Api::Desktop;
    // If no version or profile is requested, a driver gives the newest one that keeps the fixed functions.
    constexpr EGLint newest[] = {EGL_NONE};
    constexpr EGLint third[] = {EGL_CONTEXT_CLIENT_VERSION, 3, EGL_NONE};
    if (eglBindAPI(desktop ? EGL_OPENGL_API : EGL_OPENGL_ES_API) &&
        choose_config(display, desktop ? EGL_OPENGL_BIT : EGL_OPENGL_ES3_BIT, config)) {
        context = eglCreateContext(display, config, EGL_NO_CONTEXT, desktop ? newest : third);
        if (context != EGL_NO_CONTEXT && MakeCurrent(config) && (!desktop || has_fixed_functions())) return true;
    }
    Close();
    return false;
}

bool OffscreenContext::MakeCurrent(EGLConfig config) {
    if (eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, context)) return true;
    constexpr EGLint size[] = {EGL_WIDTH, 16, EGL_HEIGHT, 16, EGL_NONE};
    surface = eglCreatePbufferSurface(display, config, size);
    return surface != EGL_NO_SURFACE && eglMakeCurrent(display, surface, surface, context);
}

void OffscreenContext::Close() {
    if (display == EGL_NO_DISPLAY) return;
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    if (surface != EGL_NO_SURFACE) eglDestroySurface(display, surface);
    if (context != EGL_NO_CONTEXT) eglDestroyContext(display, context);
    eglTerminate(display);
    display = EGL_NO_DISPLAY;
    context = EGL_NO_CONTEXT;
    surface = EGL_NO_SURFACE;
}

std::string OffscreenContext::Renderer() {
    auto const* const name = reinterpret_cast<char const*>(glGetString(GL_RENDERER)); // NOLINT(*-reinterpret-cast)
    return name ? name : "";
}
