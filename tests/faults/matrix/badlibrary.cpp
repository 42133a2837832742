// SPDX-License-Identifier: MIT
// Loaded before the libraries of sound and OpenGL, has one of their calls go wrong: BAD_CALL names it, BAD_WAY is how:
// "hangs", "fails", "crashes", "aborts". BAD_FROM says how many calls are well before.

#include <AL/al.h>
#include <AL/alc.h>
#include <GL/gl.h>
#include <GL/glx.h>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <unistd.h>

namespace {

/// @return whether the call is to fail
bool goes_wrong(char const* call) {
    char const* const wanted = std::getenv("BAD_CALL");
    char const* const way = std::getenv("BAD_WAY");
    char const* const well = std::getenv("BAD_FROM");
    static std::atomic<int> called = 0;
    if (!wanted || !way || std::strcmp(wanted, call) != 0) return false;
    if (well && called++ < std::atoi(well)) return false;
    if (std::strcmp(way, "crashes") == 0) raise(SIGSEGV);
    if (std::strcmp(way, "aborts") == 0) std::abort();
    while (std::strcmp(way, "hangs") == 0) pause();
    return true;
}

template<typename Function>
Function* real(char const* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

#define BAD(type, name, parameters, arguments, failure)                                                                \
    extern "C" __attribute__((visibility("default"))) type name parameters {                                           \
        if (goes_wrong(#name)) return failure;                                                                         \
        return real<type parameters>(#name) arguments;                                                                 \
    }

BAD(ALCdevice*, alcOpenDevice, (ALCchar const* n), (n), nullptr)
BAD(ALCcontext*, alcCreateContext, (ALCdevice * d, ALCint const* a), (d, a), nullptr)
BAD(ALCboolean, alcMakeContextCurrent, (ALCcontext * c), (c), ALC_FALSE)
BAD(void, alcDestroyContext, (ALCcontext * c), (c), )
BAD(ALCboolean, alcCloseDevice, (ALCdevice * d), (d), ALC_FALSE)
BAD(void, alGenSources, (ALsizei n, ALuint* s), (n, s), )
BAD(void, alDeleteSources, (ALsizei n, ALuint const* s), (n, s), )
BAD(void, alGenBuffers, (ALsizei n, ALuint* b), (n, b), )
BAD(void, alDeleteBuffers, (ALsizei n, ALuint const* b), (n, b), )
BAD(void, alBufferData, (ALuint b, ALenum f, void const* d, ALsizei s, ALsizei r), (b, f, d, s, r), )
BAD(void, alSourceQueueBuffers, (ALuint s, ALsizei n, ALuint const* b), (s, n, b), )
BAD(void, alSourcePlay, (ALuint s), (s), )
BAD(void, alSourcePause, (ALuint s), (s), )
BAD(void, alSourceStop, (ALuint s), (s), )
BAD(ALenum, alGetEnumValue, (ALchar const* n), (n), 0)

BAD(XVisualInfo*, glXChooseVisual, (Display * d, int s, int* a), (d, s, a), nullptr)
BAD(GLXContext, glXCreateContext, (Display * d, XVisualInfo* v, GLXContext s, Bool i), (d, v, s, i), nullptr)
BAD(Bool, glXMakeCurrent, (Display * d, GLXDrawable w, GLXContext c), (d, w, c), False)
BAD(GLubyte const*, glGetString, (GLenum n), (n), nullptr)
BAD(GLuint, glGenLists, (GLsizei n), (n), 0)
BAD(GLboolean, glIsList, (GLuint l), (l), GL_FALSE)
