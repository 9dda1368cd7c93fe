#pragma once

#include <QObject>

namespace pad {

/// Turns the system's wish that the program end (SIGTERM, SIGINT, SIGHUP) into a signal of the event loop.
/// One at a time; when it goes, the wishes are obeyed at once again.
class TerminationSignal : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignal(QObject* parent);
    ~TerminationSignal() override;

signals:
    void received();
};

} // namespace pad
