#include "KORVA_Preview_Dialog.h"
#include "PreviewFixtures.h"

using fixtures::display;
using fixtures::key;

class tst_PreviewDialog : public support::TestCase
{
    Q_OBJECT

    QTemporaryDir m_folder;
    const QString m_photo = m_folder.filePath("photo.png");

private slots:
    void initTestCase() { QVERIFY(support::mosaic(QSize(100, 80)).save(m_photo)); }

    void theDialogIsAsDesigned()
    {
        KORVA_Preview_Dialog dialog(m_photo);
        QVERIFY(!dialog.isModal());
        QVERIFY(!dialog.parent());
        QVERIFY(dialog.objectName().isEmpty());
        const QWidget* thumbnail = dialog.childAt(12, 16);
        while (thumbnail && thumbnail->parent() != &dialog)
            thumbnail = thumbnail->parentWidget();
        QVERIFY(thumbnail);
        QCOMPARE(thumbnail->geometry(), QRect(10, 14, 204, 191));

        const UTIL_PushButton* cancel = key(dialog, "Cancel");
        const UTIL_PushButton* confirm = key(dialog, "Confirm");
        QCOMPARE(cancel->flags(), 10);
        QCOMPARE(confirm->flags(), 9);
        QCOMPARE(cancel->y(), confirm->y());
        QVERIFY(cancel->geometry().right() < confirm->x());
        QVERIFY(cancel->y() > thumbnail->geometry().bottom());
        QVERIFY(dialog.rect().contains(confirm->geometry()));
        QVERIFY(cancel->isEnabled() && confirm->isEnabled());
    }

    void theThumbnailAndTheNameAreShown()
    {
        KORVA_Preview_Dialog dialog(m_photo);
        dialog.show();
        QTRY_VERIFY(!display(dialog)->pixmap().isNull());
        QVERIFY(support::sameImage(display(dialog)->pixmap(), support::mosaic(QSize(100, 80))));
        QVERIFY(support::labels(dialog).contains("photo.png"));
    }

    void itEnds_data() { fixtures::addEnds(QDialog::Rejected); }
    void itEnds()
    {
        QFETCH(fixtures::Way, way);
        KORVA_Preview_Dialog dialog(m_photo);
        support::whenOpen([way](QDialog& open) { fixtures::end(open, way); });
        QTEST(dialog.exec(), "result");
    }

    void anUnreadableFileIsMarkedAndNothingIsSaid()
    {
        const fixtures::Device device;
        KORVA_Preview_Dialog dialog(m_folder.filePath("missing.png"));
        dialog.show();
        QTRY_VERIFY(!display(dialog)->pixmap().isNull());
        QCOMPARE(device.told(), QStringList());
        QVERIFY(key(dialog, "Confirm")->isEnabled());
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_PreviewDialog>(argc, argv);
}

#include "tst_PreviewDialog.moc"
