#include "BareWidget.h"
#include "Counters.h"
#include "Subjects.h"

#include <QApplication>
#include <QPaintEvent>

#include <cstdio>

// korva-bench-events count: what one motion event costs, for each subject, as JSON.
// korva-bench-events run SUBJECT...: the same events for an instrument that counts korvaBenchCounted().
//
// Each event is delivered by way of the window, 2 ms after the one before, and followed by what is due. The
// clock stands still between them, so that no more is due on a slow machine than on a fast one.

namespace {

namespace counters = bench::counters;

constexpr int warmUp = 100;
constexpr int measured = 200;
constexpr std::chrono::milliseconds pace(2);

struct Counts
{
    long allocations = 0;        // Qt's own included
    long handlerAllocations = 0; // while a widget handles the event, but for what it repaints at once
    long painters = 0;
    long deliveries = 0; // of any event to any object
    long repaints = 0;   // paint events
    long pixels = 0;     // in the regions of the paint events
};

constexpr struct
{
    const char* name;
    long Counts::*value;
} columns[] = {
    {"allocations", &Counts::allocations}, {"handler_allocations", &Counts::handlerAllocations},
    {"painters", &Counts::painters},       {"deliveries", &Counts::deliveries},
    {"repaints", &Counts::repaints},       {"pixels", &Counts::pixels},
};

/// Sees every event on its way.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        ++m_counts.deliveries;
        const QEvent::Type type = event->type();
        if (type == QEvent::Paint) {
            ++m_counts.repaints;
            for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
                m_counts.pixels += long(part.width()) * part.height();
        }
        const bool isInput = type == QEvent::MouseMove || type == QEvent::KeyPress;
        if (!isInput || !receiver->isWidgetType() || m_isHandling)
            return QApplication::notify(receiver, event);
        m_isHandling = true;
        const long before = counters::allocations() - counters::allocationsOfRepaints();
        const bool isHandled = QApplication::notify(receiver, event);
        m_counts.handlerAllocations += counters::allocations() - counters::allocationsOfRepaints() - before;
        m_isHandling = false;
        return isHandled;
    }

    [[nodiscard]] Counts counts() const
    {
        Counts counts = m_counts;
        counts.allocations = counters::allocations();
        counts.painters = counters::painters();
        return counts;
    }

private:
    Counts m_counts;
    bool m_isHandling = false;
};

void proceed(bench::Subject& subject, int from, int events)
{
    for (int i = from; i < from + events; ++i) {
        counters::advanceClock(pace);
        subject.event(i);
        QCoreApplication::processEvents();
    }
}

} // namespace

/// By how much a stroke of 300 events costs more than one of 100: neither start nor end is in it.
extern "C" [[gnu::noinline]] void korvaBenchCounted(bench::Subject& subject)
{
    proceed(subject, 1 + warmUp, measured);
}

namespace {

void printCounts(const Application& app, const char* name)
{
    const auto subject = bench::makeSubject(name);
    proceed(*subject, 1, warmUp);
    const Counts before = app.counts();
    korvaBenchCounted(*subject);
    const Counts after = app.counts();
    std::printf("\"%s\": {", name);
    const char* between = "";
    for (const auto& [column, value] : columns) {
        std::printf("%s\"%s\": %.4f", between, column, double(after.*value - before.*value) / measured);
        between = ", ";
    }
    std::fputs("}", stdout);
}

int complain()
{
    std::fputs("usage: korva-bench-events count\n       korva-bench-events run SUBJECT...\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    counters::advanceClock(pace); // before any timer is started
    const Application app(argc, argv);
    const std::string command = argc >= 2 ? argv[1] : "";
    if (command == "count" && argc == 2) {
        const char* between = "{\n";
        for (const std::string& name : bench::subjectNames()) {
            std::fputs(between, stdout);
            printCounts(app, name.c_str());
            between = ",\n";
        }
        std::puts("\n}");
    } else if (command == "run" && argc > 2) {
        for (int i = 2; i < argc; ++i) {
            const auto subject = bench::makeSubject(argv[i]);
            if (!subject)
                return complain();
            proceed(*subject, 1, warmUp);
            korvaBenchCounted(*subject);
        }
    } else {
        return complain();
    }
    return 0;
}
