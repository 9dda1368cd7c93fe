#include "Example.h"

/// The example whose drawing is always there, as a person uses it.
class tst_Journal : public support::TestCase
{
    Q_OBJECT

private slots:
    void drawingComesBack();
    void beginsAnewAndKeepsACopy();
};

namespace {

constexpr QSize window(240, 280);
constexpr QPoint onCanvas(60, 80);
constexpr QPoint anewKey(120, 253);

QStringList filesIn(const QString& folder, const QString& pattern)
{
    return QDir(folder).entryList({pattern}, QDir::Files);
}

void drawLine(Example& example)
{
    example.drag(onCanvas - QPoint(20, 0), onCanvas + QPoint(20, 0));
}

} // namespace

void tst_Journal::drawingComesBack()
{
    const QTemporaryDir folder;
    {
        Example example(window, {folder.path()});
        QVERIFY(example.shows(onCanvas, Qt::white));
        drawLine(example);
        QVERIFY(example.shows(onCanvas, Qt::red));
        QTRY_COMPARE(filesIn(folder.path(), "living-*.png").size(), 1);
    } // ended as the system ends programs
    Example again(window, {folder.path()});
    QVERIFY(again.shows(onCanvas, Qt::red));
}

void tst_Journal::beginsAnewAndKeepsACopy()
{
    const QTemporaryDir folder;
    Example example(window, {folder.path()});
    QVERIFY(example.shows(onCanvas, Qt::white));
    drawLine(example);
    QVERIFY(example.shows(onCanvas, Qt::red));
    example.click(anewKey);
    QVERIFY(example.shows(onCanvas, Qt::white));
    const QStringList kept = filesIn(folder.path(), "earlier-*.png");
    QCOMPARE(kept.size(), 1);
    const QImage picture(folder.filePath(kept.first()));
    QCOMPARE(picture.size(), QSize(200, 170));
    QTRY_COMPARE(filesIn(folder.path(), "living-*"), QStringList());
}

int main(int argc, char** argv)
{
    return support::run<tst_Journal>(argc, argv);
}

#include "tst_Journal.moc"
