#include "KORVA_Preview.h"
#include "PreviewFixtures.h"

using fixtures::Way;

class tst_KorvaPreview : public support::TestCase
{
    Q_OBJECT

    [[nodiscard]] static int preview(const QString& first, const QString& file,
                                     const std::function<void(QDialog&)>& work)
    {
        support::whenOpen(work);
        int result = -5;
        KorvaPreview(first, file, result);
        return result;
    }

    QTemporaryDir m_folder;
    const QString m_photo = m_folder.filePath("photo.jpg");
    const QString m_other = m_folder.filePath("other.png");

private slots:
    void initTestCase()
    {
        QVERIFY(support::sheet(QSize(80, 60), Qt::blue).save(m_photo));
        QVERIFY(support::sheet(QSize(30, 20), Qt::red).save(m_other));
    }

    void theCodeTellsTheUsersChoice_data() { fixtures::addEnds(); }
    void theCodeTellsTheUsersChoice()
    {
        QFETCH(Way, way);
        QFETCH(int, result);
        const int code = preview({}, m_photo, [way](QDialog& viewer) {
            QTRY_COMPARE(fixtures::display(viewer)->pixmap().size(), QSize(80, 60));
            fixtures::end(viewer, way);
        });
        QCOMPARE(code, result == 1 ? 900 : 902);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void theFirstStringHasNoEffect_data()
    {
        QTest::addColumn<QString>("first");
        QTest::newRow("null") << QString();
        QTest::newRow("words") << "a title";
        QTest::newRow("another picture") << m_other;
        QTest::newRow("missing") << m_folder.filePath("missing.jpg");
    }

    void theFirstStringHasNoEffect()
    {
        QFETCH(QString, first);
        const fixtures::Device device;
        QImage shown;
        const int code = preview(first, m_photo, [&shown](QDialog& viewer) {
            QTRY_COMPARE(fixtures::display(viewer)->pixmap().size(), QSize(80, 60));
            QTest::mouseMove(&viewer, QPoint(1, 1));
            shown = viewer.grab().toImage();
            fixtures::end(viewer, Way::ConfirmByPointer);
        });
        QCOMPARE(code, 900);
        QCOMPARE(device.told(), QStringList());
        if (first.isNull())
            m_shown = shown;
        QVERIFY(support::sameImage(shown, m_shown));
    }

    void anUnreadablePictureIsCancelled()
    {
        const fixtures::Device device;
        const int code = preview({}, m_folder.filePath("missing.jpg"), [&device](QDialog& viewer) {
            QTRY_COMPARE(device.told().size(), 2);
            fixtures::end(viewer, Way::ConfirmByPointer);
            fixtures::end(viewer, Way::CancelByPointer);
        });
        QCOMPARE(code, 902);
    }

    void anyOtherEndLeavesTheCodeAlone()
    {
        QCOMPARE(preview({}, m_photo, [](QDialog& viewer) { viewer.done(7); }), -5);
    }

private:
    QImage m_shown; ///< with no first string
};

int main(int argc, char** argv)
{
    return support::run<tst_KorvaPreview>(argc, argv);
}

#include "tst_KorvaPreview.moc"
