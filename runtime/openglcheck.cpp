// SPDX-License-Identifier: MIT
#include "runtime/openglcheck.h"

#include "runtime/streams.h"

#include <GL/gl.h>
#include <GL/glx.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <array>
#include <memory>

namespace {

bool refused = false;

int note_refusal(Display*, XErrorEvent*) {
    refused = true;
    return 0;
}

/// While it lives, what the display refuses is noted, instead of ending the program.
class Refusals {
public:
    Refusals() : before(XSetErrorHandler(note_refusal)) { refused = false; }
    ~Refusals() { XSetErrorHandler(before); }
    Refusals(Refusals const&) = delete;
    Refusals& operator=(Refusals const&) = delete;

private:
    XErrorHandler before;
};

struct CloseDisplay {
    void operator()(Display* display) const { XCloseDisplay(display); }
};
struct Free {
    void operator()(XVisualInfo* visual) const { XFree(visual); }
};

bool has_lists() {
    if (!glGetString(GL_VERSION)) return false;
    GLuint const list = glGenLists(1);
    if (list == 0) return false;
    glNewList(list, GL_COMPILE);
    glBegin(GL_TRIANGLES);
    glEnd();
    glEndList();
    bool const made = glIsList(list) == GL_TRUE;
    glDeleteLists(list, 1);
    return made && glGetError() == GL_NO_ERROR;
}

/// A window that is never seen.
Window make_window(Display* display, XVisualInfo const& visual) {
    Window const root = RootWindow(display, visual.screen);
    XSetWindowAttributes attributes{};
    attributes.colormap = XCreateColormap(display, root, visual.visual, AllocNone);
    return XCreateWindow(display, root, 0, 0, 1, 1, 0, visual.depth, InputOutput, visual.visual,
                         CWColormap | CWBorderPixel, &attributes);
}

std::string what_context_lacks(Display* display, XVisualInfo& visual) {
    constexpr char const* no_context = "This display's OpenGL driver fails: it gives no context to draw in.";
    GLXContext const context = glXCreateContext(display, &visual, nullptr, True);
    Window const window = make_window(display, visual);
    XSync(display, False); // what is refused is told now
    if (!context || refused || !glXMakeCurrent(display, window, context)) return no_context;
    bool const lists = has_lists();
    glXMakeCurrent(display, 0, nullptr);
    glXDestroyContext(display, context);
    XSync(display, False);
    if (refused) return no_context;
    return lists ? "" : "This display's OpenGL driver has no display lists, which the show is made of.";
}

} // namespace

std::string what_opengl_lacks() {
    QuietStandardError const quiet;
    Refusals const refusals;
    std::unique_ptr<Display, CloseDisplay> const display(XOpenDisplay(nullptr));
    if (!display) return "The display is lost.";
    std::array<int, 5> wanted = {GLX_RGBA, GLX_DOUBLEBUFFER, GLX_DEPTH_SIZE, 1, 0};
    std::unique_ptr<XVisualInfo, Free> const visual(
        glXChooseVisual(display.get(), DefaultScreen(display.get()), wanted.data()));
    if (!visual) return "This display offers no OpenGL with colours, two buffers and depth.";
    return what_context_lacks(display.get(), *visual);
}
