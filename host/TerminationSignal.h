#pragma once

#include <QObject>

namespace pad {

/// Turns the system's signals that end a program (SIGTERM, SIGINT, SIGHUP) into a Qt signal, emitted from
/// the event loop. Only one object at a time. When it goes, the system's signals end the program at once
/// again.
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
