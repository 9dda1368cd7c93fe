#include "RES_ICON_Reader.h"
#include "UTIL_Platform.h"
#include "support/TestCase.h"

namespace {

constexpr auto probeArgument = "--probe";

/// A host with icons of its own.
class Host : public UTIL_Platform
{
public:
    explicit Host(const QString& folder) : m_folder(folder) {}
    QString iconFolder() const override { return m_folder; }

private:
    QString m_folder;
};

void saveSquare(const QTemporaryDir& folder, const QString& name, int side)
{
    QPixmap square(side, side);
    square.fill(Qt::magenta);
    QVERIFY(square.save(folder.filePath(name), "PNG"));
}

bool isMagenta(const QPixmap& icon)
{
    return icon.toImage().pixelColor(0, 0) == QColor(Qt::magenta);
}

} // namespace

class tst_IconReader : public support::TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { UTIL_Platform::install(nullptr); }

    void everyPictureIsThere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        const auto add = [](const QString& name, QSize size) {
            QTest::addRow("%s", qPrintable(name)) << name + ".gif" << size;
        };
        const QStringList tools = {"Pencil", "Selection", "Line", "Text", "Rectangle", "Ellipse", "Eraser"};
        for (const QString& tool : tools)
            add("DaApV_" + tool + "_Tool", {24, 18});
        const QStringList options = {"Line_Tool_Opt_S",          "Line_Tool_Opt_M",
                                     "Line_Tool_Opt_L",          "Eraser_Tool_Opt_S",
                                     "Eraser_Tool_Opt_M",        "Eraser_Tool_Opt_L",
                                     "Text_Tool_Opt_7pt",        "Text_Tool_Opt_9pt",
                                     "Text_Tool_Opt_11pt",       "Sel_Tool_Opt_Rect",
                                     "Sel_Tool_Opt_Hand",        "Rectangle_Tool_Opt_Border",
                                     "Ellipse_Tool_Opt_Border",  "Rectangle_Tool_Opt_N_Border",
                                     "Ellipse_Tool_Opt_N_Border"};
        for (const QString& option : options)
            add("DaApV_" + option, {24, 18});
        for (const QString& channel : QStringList{"Red", "Green", "Blue"})
            add("DaApV_Color_Picker_" + channel + "_S_Dot", {16, 10});
        add("DaApV_Color_Picker_S_Slot", {162, 10});
        for (const QString& message : QStringList{"Complete", "Error", "Exclamatory_Mark", "Empty_Trash"})
            add("Dialog_" + message, {40, 40});
    }

    void everyPictureIsThere()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        const QPixmap icon = RES_ICON_Reader::getIcon(name);
        QCOMPARE(icon.deviceIndependentSize().toSize(), size);
    }

    void anUnknownNameGivesNothingAndNoWarning_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("unknown") << "DaApV_Spray_Tool.gif";
        QTest::newRow("empty") << QString();
        QTest::newRow("without its suffix") << "Dialog_Error";
        QTest::newRow("a path") << "../icons/Dialog_Error.gif";
        QTest::newRow("a folder") << ".";
    }

    void anUnknownNameGivesNothingAndNoWarning()
    {
        QFETCH(QString, name);
        QVERIFY(RES_ICON_Reader::getIcon(name).isNull());
    }

    void aHostsFolderComesFirst()
    {
        const QTemporaryDir folder;
        saveSquare(folder, "Dialog_Error.gif", 12);
        UTIL_Platform::install(std::make_unique<Host>(folder.path()));

        const QPixmap own = RES_ICON_Reader::getIcon("Dialog_Error.gif");
        QVERIFY(isMagenta(own));
        QCOMPARE(own.size(), QSize(12, 12));
        QCOMPARE(RES_ICON_Reader::getIcon("Dialog_Complete.gif").deviceIndependentSize(), QSizeF(40, 40));
    }

    void aDamagedFileOfTheHostIsPassedOver()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("Dialog_Error.gif"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        UTIL_Platform::install(std::make_unique<Host>(folder.path()));
        QCOMPARE(RES_ICON_Reader::getIcon("Dialog_Error.gif").deviceIndependentSize(), QSizeF(40, 40));
    }

    void theScreenDecidesTheSharpness_data()
    {
        QTest::addColumn<QByteArray>("scale");
        QTest::addColumn<QByteArray>("pixels");
        QTest::newRow("1") << QByteArray("1") << QByteArray("40");
        QTest::newRow("1.5") << QByteArray("1.5") << QByteArray("80");
        QTest::newRow("2") << QByteArray("2") << QByteArray("80");
        QTest::newRow("3") << QByteArray("3") << QByteArray("120");
        QTest::newRow("4") << QByteArray("4") << QByteArray("120");
    }

    void theScreenDecidesTheSharpness()
    {
        QFETCH(QByteArray, scale);
        QFETCH(QByteArray, pixels);
        QProcess probe;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", scale);
        probe.setProcessEnvironment(environment);
        probe.start(QCoreApplication::applicationFilePath(), {probeArgument});
        QVERIFY(probe.waitForFinished());
        QCOMPARE(probe.readAllStandardOutput(), pixels + " 40");
    }
};

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], probeArgument) == 0) {
        QApplication app(argc, argv);
        const QPixmap icon = RES_ICON_Reader::getIcon("Dialog_Error.gif");
        std::printf("%d %d", icon.width(), int(icon.deviceIndependentSize().width()));
        return 0;
    }
    return support::run<tst_IconReader>(argc, argv);
}

#include "tst_IconReader.moc"
