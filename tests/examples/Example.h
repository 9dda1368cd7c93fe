#pragma once

#include "support/TestCase.h"
#include "support/XServer.h"

/// The program KORVA_EXAMPLE on a screen of its own, and a person at it. Points are the window's.
class Example
{
public:
    static constexpr int patience = 20'000; // ms

    explicit Example(QSize window, const QStringList& arguments = {},
                     const QMap<QString, QString>& variables = {}, QSize screen = QSize(800, 600),
                     const QByteArray& input = {})
        : m_screen(screen)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto it = variables.begin(); it != variables.end(); ++it)
            environment.insert(it.key(), it.value());
        environment.insert("DISPLAY", m_screen.display());
        environment.insert("QT_QPA_PLATFORM", "xcb");
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(KORVA_EXAMPLE, arguments);
        m_process.write(input);
        m_process.closeWriteChannel();
        if (!input.isEmpty())
            m_process.waitForBytesWritten(patience); // waiting for the window writes nothing
        m_place = m_screen.waitForWindow(window);
    }
    ~Example()
    {
        m_process.terminate();
        m_process.waitForFinished(patience);
    }
    Example(const Example&) = delete;
    Example& operator=(const Example&) = delete;

    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// What it has written since the last call.
    [[nodiscard]] QByteArray output()
    {
        m_process.waitForReadyRead(0);
        return m_process.readAllStandardOutput();
    }
    [[nodiscard]] support::XServer& screen() { return m_screen; }
    /// Empty when no window came.
    [[nodiscard]] QRect place() const { return m_place; }

    void click(QPoint at) { m_screen.click(m_place.topLeft() + at); }
    void drag(QPoint from, QPoint to)
    {
        m_screen.moveTo(m_place.topLeft() + from);
        m_screen.press();
        m_screen.moveTo(m_place.topLeft() + to);
        m_screen.release();
    }
    [[nodiscard]] QImage shot() const { return m_screen.screenshot().copy(m_place); }
    /// Waits until the pixel, which may lie outside the window, has the colour.
    [[nodiscard]] bool shows(QPoint at, const QColor& expected) const
    {
        const auto color = [this, at] { return m_screen.screenshot().pixelColor(m_place.topLeft() + at); };
        return QTest::qWaitFor([&] { return color() == expected; }, patience);
    }

private:
    support::XServer m_screen;
    QProcess m_process;
    QRect m_place;
};
