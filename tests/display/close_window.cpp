// Asks one X window to close the way its close box does: a WM_DELETE_WINDOW
// message, which the program takes as the user's own close.
//
// Usage: close_window WINDOW-ID   (as xwininfo prints it, e.g. 0x1e00003)
#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const Window window = argc == 2 ? std::strtoul(argv[1], nullptr, 0) : 0;
    Display* display = window != 0 ? XOpenDisplay(nullptr) : nullptr;
    if (display == nullptr) {
        std::fprintf(stderr, "usage: close_window WINDOW-ID, on an X display\n");
        return 2;
    }
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    event.xclient.data.l[1] = CurrentTime;
    const Status sent = XSendEvent(display, window, False, NoEventMask, &event);
    XCloseDisplay(display);  // flushes the request
    return sent != 0 ? 0 : 1;
}
