#pragma once

#include <functional>

class QObject;

namespace flickerscribe::ui {

// Runs `end` on the event loop when the program is asked to end by a signal:
// SIGTERM (a shutdown, `kill`) or SIGHUP (a logout on some desktops), so that
// it ends as by Exit and keeps the animation. A later call takes the place of
// an earlier one; `end` is dropped with `context`. Does nothing on Windows,
// where the desktop asks through the window instead.
void endOnTerminationSignals(QObject* context, std::function<void()> end);

}  // namespace flickerscribe::ui
