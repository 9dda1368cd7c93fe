#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Formats.h"
#include "KORVA_PictureFile.h"
#include "KORVA_PictureSave.h"
#include "support/Images.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <cstdio>

namespace {

constexpr auto folderVariable = "KORVA_TEST_PICTURES";
constexpr auto downloadVariable = "KIV_LOCAL_DOWNLOAD_PATH";

QByteArray digest(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

QByteArray digest(const QImage& image)
{
    QByteArray pixels;
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < plain.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(plain.constScanLine(y)), plain.width() * 4);
    return digest(pixels);
}

void tell(const QString& name, const QByteArray& result)
{
    std::printf("%s %s\n", qPrintable(name), result.constData());
}

} // namespace

/// What a program is started in makes no difference to what it reads, draws and writes.
class tst_Surroundings : public support::TestCase
{
    Q_OBJECT

public:
    /// In a process of its own: tells all results.
    Q_INVOKABLE void results();

private slots:
    void initTestCase();
    void makeNoDifference_data();
    void makeNoDifference();

private:
    QTemporaryDir m_folder;
    QString m_expected;
};

void tst_Surroundings::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkdir("pictures") && QDir(m_folder.path()).mkdir("appwrite"));
    const QDir folder(m_folder.filePath("pictures"));
    const auto path = [&folder](const char* name) { return folder.filePath(name); };
    QVERIFY(support::mosaic(QSize(500, 400)).save(path("a.png")));
    for (const char* name : {"a.jpg", "a.gif", "a.bmp", "a.wbmp"})
        QVERIFY(support::convert({path("a.png"), path(name)}));
    QVERIFY(support::convert({path("a.png"), "-interlace", "JPEG", path("p.jpg")}));
    for (const char* name : {"a.png", "a.jpg", "p.jpg", "a.gif", "a.bmp"}) {
        const QByteArray whole = support::contents(path(name));
        support::write(folder.filePath(QString("cut-") + name), whole.first(whole.size() * 2 / 3));
        const QByteArray nonsense = QByteArray("\xff\0\x55", 3).repeated(20);
        support::write(folder.filePath(QString("damaged-") + name),
                       QByteArray(whole).replace(whole.size() / 2, nonsense.size(), nonsense));
    }
    qputenv(folderVariable, QFile::encodeName(folder.path()));
    qputenv(downloadVariable, QFile::encodeName(m_folder.path()));

    const support::ChildProcess child = support::ChildProcess::run("results");
    QCOMPARE(child.signal, 0);
    m_expected = child.output;
    QCOMPARE(m_expected.count('\n'), 16 + 3 + 1);
}

void tst_Surroundings::results()
{
    const QDir folder(QFile::decodeName(qgetenv(folderVariable)));
    for (const QString& name : folder.entryList({"*a.*", "*p.*"}, QDir::Files, QDir::Name)) {
        KORVA_PictureFile file(folder.filePath(name));
        const int status = file.check(KORVA_Formats::readFormat(name));
        tell(name, QByteArray::number(status) + ' ' + digest(KORVA_WorkingLimits().fitted(file.take())));
    }
    for (const char* format : {"PNG", "JPEG", "BMP"}) {
        const QString name = folder.filePath(QString("saved.") + format);
        const bool isSaved = picturesave::replace(
            name, [format] { return picturesave::encoded(support::mosaic(QSize(90, 70)), format); });
        tell(format, QByteArray::number(isSaved) + ' ' + digest(support::contents(name)));
        QFile::remove(name);
    }
    KORVA_EditCanvas editor(KORVA_COLOR_16BIT);
    editor.show();
    QTest::mousePress(editor.canvas(), Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseMove(editor.canvas(), QPoint(90, 60));
    QTest::mouseRelease(editor.canvas(), Qt::LeftButton, {}, QPoint(90, 60));
    tell("drawing", digest(editor.snapshot()));
}

void tst_Surroundings::makeNoDifference_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value"); ///< null: not set
    const auto row = [](const char* name, const QByteArray& variable, const QByteArray& value) {
        QTest::addRow("%s", name) << variable << value;
    };
    row("logging off", "QT_LOGGING_RULES", "*=false");
    row("logging all", "QT_LOGGING_RULES", "*=true");
    row("German", "LC_ALL", "de_DE.UTF-8");
    row("Turkish", "LC_ALL", "tr_TR.UTF-8");
    row("Arabic", "LC_ALL", "ar_EG.UTF-8");
    row("plain C", "LC_ALL", "C");
    row("no home", "HOME", {});
    row("a home that is not there", "HOME", "/nowhere");
    row("another folder", {}, {});
    row("a folder that is gone", {}, "gone");
}

void tst_Surroundings::makeNoDifference()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    const QByteArray before = qgetenv(variable.constData());
    const QString folderBefore = QDir::currentPath();
    const QString other = m_folder.filePath("other");
    if (variable.isEmpty()) {
        QVERIFY(QDir().mkpath(other) && QDir::setCurrent(other));
        if (!value.isNull())
            QVERIFY(QDir().rmdir(other));
    } else if (value.isNull()) {
        qunsetenv(variable.constData());
    } else {
        qputenv(variable.constData(), value);
    }
    const support::ChildProcess child = support::ChildProcess::run("results");
    if (variable.isEmpty())
        QVERIFY(QDir::setCurrent(folderBefore));
    else if (before.isNull())
        qunsetenv(variable.constData());
    else
        qputenv(variable.constData(), before);
    QCOMPARE(child.signal, 0);
    QCOMPARE(child.output, m_expected);
}

int main(int argc, char** argv)
{
    return support::run<tst_Surroundings>(argc, argv);
}

#include "tst_Surroundings.moc"
