#include "IMV_UI_IconViewItem.h"
#include "UTIL_Skin.h"
#include "support/Images.h"
#include "support/TestCase.h"

namespace {

constexpr QSize size(204, 191);

/// The label that shows the text or, without one, a picture.
QLabel* labelOf(const QWidget& item, const QString& text = {})
{
    for (QLabel* label : item.findChildren<QLabel*>())
        if (label->text() == text)
            return label;
    return nullptr;
}

} // namespace

class tst_IconViewItem : public support::TestCase
{
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void theThumbnailIsAboveTheName()
    {
        const QFileInfo file(m_folder.filePath("A walk.png"));
        QVERIFY(support::mosaic(QSize(50, 40)).save(file.filePath()));
        IMV_UI_IconViewItem item(file);
        item.resize(size);
        QVERIFY(labelOf(item)->pixmap().isNull()); // not read before it is seen
        item.show();
        QTRY_VERIFY(!labelOf(item)->pixmap().isNull());
        QVERIFY(support::sameImage(labelOf(item)->pixmap(), support::mosaic(QSize(50, 40))));
        const QLabel* name = labelOf(item, "A walk.png");
        QVERIFY(name);
        QCOMPARE(name->geometry().bottom(), size.height() - 1);
        QVERIFY(name->height() >= name->fontMetrics().height());
        QVERIFY(labelOf(item)->geometry().bottom() < name->y());
        QCOMPARE(labelOf(item)->width(), size.width());
        QCOMPARE(item.accessibleName(), "A walk.png");
    }

    void aLongNameLeavesTheThumbnailItsRoom()
    {
        const QFileInfo file(m_folder.filePath(QString("long").repeated(50) + ".jpg"));
        QVERIFY(support::sheet(QSize(600, 800), Qt::blue).save(file.filePath()));
        IMV_UI_IconViewItem item(file);
        item.resize(size);
        item.show();
        QTRY_VERIFY(!labelOf(item)->pixmap().isNull());
        const int room = size.height() - UTIL_Skin::Size::spacing - 2 * item.fontMetrics().lineSpacing();
        QCOMPARE(labelOf(item)->pixmap().height(), room);
        QCOMPARE(item.size(), size);
    }

    void anUnreadableFileHasAMarkAndItsName()
    {
        IMV_UI_IconViewItem item(QFileInfo(m_folder.filePath("nothing.png")));
        item.resize(size);
        item.show();
        QTRY_VERIFY(!labelOf(item)->pixmap().isNull());
        QVERIFY(labelOf(item, "nothing.png"));
    }
};

int main(int argc, char** argv)
{
    return support::run<tst_IconViewItem>(argc, argv);
}

#include "tst_IconViewItem.moc"
