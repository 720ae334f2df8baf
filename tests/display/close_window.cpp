// Asks one X window to close the way its close box does: a WM_DELETE_WINDOW
// message, which the program takes as the user's own close.
//
// Usage: close_window WINDOW-ID   (as xwininfo prints it, e.g. 0x1e00003)
#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: close_window WINDOW-ID\n");
        return 2;
    }
    char* end = nullptr;
    const Window window = std::strtoul(argv[1], &end, 0);
    if (end == argv[1] || *end != '\0' || window == 0) {
        std::fprintf(stderr, "close_window: not a window id: %s\n", argv[1]);
        return 2;
    }
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "close_window: no X display\n");
        return 1;
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
