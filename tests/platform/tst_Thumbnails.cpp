#include "UTIL_Thumbnails.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

class tst_Thumbnails : public support::TestCase
{
    Q_OBJECT

private slots:
    void greatPicturesAreMadeOnlyWhereThatIsCheap_data();
    void greatPicturesAreMadeOnlyWhereThatIsCheap();
    void foreignContentIsNoPicture();

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

namespace {

/// Null where there is none to be had.
QPixmap made(const QString& fileName)
{
    UTIL_Thumbnails thumbnails;
    QSignalSpy ready(&thumbnails, &UTIL_Thumbnails::ready);
    (void)thumbnails.wanted(fileName);
    constexpr int patience = 60'000;
    return ready.wait(patience) ? thumbnails.wanted(fileName) : QPixmap();
}

} // namespace

void tst_Thumbnails::greatPicturesAreMadeOnlyWhereThatIsCheap_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isMade");
    QTest::addRow("png within the limit") << "4000x4000"
                                          << "a.png" << true;
    QTest::addRow("png beyond it") << "4001x4000"
                                   << "b.png" << false;
    QTest::addRow("gif beyond it") << "4001x4000"
                                   << "c.gif" << false;
    QTest::addRow("jpeg") << "7000x5000"
                          << "d.jpg" << true;
    QTest::addRow("progressive jpeg") << "4001x4000"
                                      << "e.pjpeg" << false;
}

void tst_Thumbnails::greatPicturesAreMadeOnlyWhereThatIsCheap()
{
    QFETCH(QString, size);
    QFETCH(QString, file);
    QFETCH(bool, isMade);
    QVERIFY(support::convert({"-size", size, "xc:#204060", path(file)}));
    QCOMPARE(!made(path(file)).isNull(), isMade);
}

void tst_Thumbnails::foreignContentIsNoPicture()
{
    QVERIFY(support::convert({"-size", "20x10", "xc:red", "PPM:" + path("disguised.png")}));
    QVERIFY(made(path("disguised.png")).isNull());
    QVERIFY(support::convert({"-size", "20x10", "xc:red", path("sound.png")}));
    QCOMPARE(made(path("sound.png")).size(), QSize(20, 10));
}

int main(int argc, char** argv)
{
    return support::run<tst_Thumbnails>(argc, argv);
}

#include "tst_Thumbnails.moc"
