#include "ColoringPage.h"
#include "KioskWindow.h"

#include <KORVA_Translations.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QLocale>

#include <cstdio>

namespace {

/// Where a kiosk would send it: here a line with the number of bytes, then the bytes.
void send(const QByteArray& picture)
{
    std::printf("%lld\n", qlonglong(picture.size()));
    std::fwrite(picture.constData(), 1, size_t(picture.size()), stdout);
    std::fflush(stdout);
}

QByteArray pageNamed(const QString& name)
{
    QFile input;
    if (name == "-" && input.open(stdin, QIODevice::ReadOnly))
        return input.readAll();
    return name == "house" ? coloringPage() : QByteArray();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    KORVA_Translations::load(QLocale());               // before the first widget,
    UTIL_Platform::install(std::make_unique<Boxes>()); // and so is this
    Idle::Times times;
    QCommandLineParser line;
    line.addHelpOption();
    line.addOption(
        {"idle", "Begin anew this long after the last touch.", "seconds", QString::number(times.seconds)});
    line.addOption({"warning", "Warn in the last seconds.", "seconds", QString::number(times.warning)});
    line.addPositionalArgument("page", "\"house\", or \"-\" for a picture from standard input.", "[page]");
    line.process(app);
    times.seconds = line.value("idle").toInt();
    times.warning = line.value("warning").toInt();

    KioskWindow kiosk(pageNamed(line.positionalArguments().value(0)), times);
    QObject::connect(&kiosk, &KioskWindow::handedOut, &send);
    kiosk.showFullScreen();
    return QApplication::exec();
}
