#include "TerminationSignal.h"

#include <QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace pad {

namespace {

constexpr int wishes[] = {SIGTERM, SIGINT, SIGHUP};
int pipeEnds[2] = {-1, -1}; // a signal handler may do little more than write

void handle(int)
{
    const char any = 0;
    [[maybe_unused]] const auto written = write(pipeEnds[1], &any, sizeof any);
}

void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int wish : wishes)
        sigaction(wish, &action, nullptr);
}

} // namespace

TerminationSignal::TerminationSignal(QObject* parent) : QObject(parent)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    connect(new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this), &QSocketNotifier::activated,
            this, [this](QSocketDescriptor end) {
                char any = 0;
                if (read(end, &any, sizeof any) > 0)
                    emit received();
            });
    setHandlers(handle);
}

TerminationSignal::~TerminationSignal()
{
    setHandlers(SIG_DFL);
    for (int& end : pipeEnds) {
        close(end);
        end = -1;
    }
}

} // namespace pad
