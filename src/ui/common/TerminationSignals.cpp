#include "ui/common/TerminationSignals.h"

#include <QObject>
#include <QPointer>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <csignal>
#endif

namespace flickerscribe::ui {

#ifdef Q_OS_UNIX
namespace {

// A signal handler may do next to nothing: it writes a byte to a socket, and
// the event loop hears of the socket.
int gSignalSocket[2] = {-1, -1};

void onSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(gSignalSocket[0], &byte, 1);
}

}  // namespace

void endOnTerminationSignals(QObject* context, std::function<void()> end) {
    static QPointer<QSocketNotifier> notifier;
    if (gSignalSocket[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, gSignalSocket) != 0)
        return;
    delete notifier;
    notifier = new QSocketNotifier(gSignalSocket[1], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [end = std::move(end)] {
        char byte = 0;
        [[maybe_unused]] const ssize_t read = ::read(gSignalSocket[1], &byte, 1);
        end();
    });
    struct sigaction action {};
    action.sa_handler = onSignal;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGHUP}) ::sigaction(signal, &action, nullptr);
}

#else

void endOnTerminationSignals(QObject*, std::function<void()>) {}

#endif

}  // namespace flickerscribe::ui
