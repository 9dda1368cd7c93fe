#include "Fixtures.h"

using fixtures::PictureCanvas;

namespace {

QAction* entry(const QMenu* menu, int id)
{
    for (QAction* action : menu->actions()) {
        if (action->data() == QVariant(id))
            return action;
    }
    return nullptr;
}

QStringList texts(const QMenu* menu)
{
    QStringList names;
    for (int id = 0; id < 3; ++id)
        names << (entry(menu, id) ? entry(menu, id)->text() : QString());
    return names;
}

} // namespace

/// A host that adds entries to the menus of the canvas and of the floating piece, or takes some away.
class tst_HostMenus : public support::TestCase
{
    Q_OBJECT

private slots:
    void theEntriesAreFoundByTheirNumbers();
    void ownEntriesAreLeftAlone_data();
    void ownEntriesAreLeftAlone();
    void entriesMayBeTakenAway();
};

void tst_HostMenus::theEntriesAreFoundByTheirNumbers()
{
    PictureCanvas canvas(support::sheet({60, 50}));
    QCOMPARE(texts(canvas.contextMenu()), QStringList({"Cut", "Copy", "Paste"}));
    QCOMPARE(texts(canvas.pasteLabel()->menu()), QStringList({"Copy", "Cut", "Paste"}));
}

void tst_HostMenus::ownEntriesAreLeftAlone_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("enabled");
    for (const bool first : {true, false})
        for (const bool enabled : {true, false})
            QTest::addRow("%s, %s", first ? "first" : "last", enabled ? "enabled" : "disabled")
                << first << enabled;
}

void tst_HostMenus::ownEntriesAreLeftAlone()
{
    QFETCH(const bool, first);
    QFETCH(const bool, enabled);
    PictureCanvas canvas(support::mosaic({60, 50}));
    QList<QAction*> own;
    for (QMenu* menu : {canvas.contextMenu(), canvas.pasteLabel()->menu()}) {
        auto* action = new QAction("Mine", menu);
        action->setData(0);
        action->setEnabled(enabled);
        menu->insertAction(first ? menu->actions().constFirst() : nullptr, action);
        own << action;
    }
    QAction* const paste = canvas.contextMenu()->actions().at(first ? 3 : 2);
    QAction* const pieceToPaste = canvas.pasteLabel()->menu()->actions().at(first ? 3 : 2);
    QAction* const cut = canvas.contextMenu()->actions().at(first ? 1 : 0);
    const auto states = [&] {
        QString all;
        for (const QAction* action : {cut, paste, pieceToPaste})
            all += action->isEnabled() ? '1' : '0';
        return all;
    };
    QCOMPARE(states(), "000");
    canvas.setSelection(QRect(5, 5, 10, 10));
    QCOMPARE(states(), "100");
    canvas.copy();
    QCOMPARE(states(), "111");
    canvas.slotClipBoard(false);
    canvas.mergePastePixmap();
    QCOMPARE(states(), "000");
    for (const QAction* action : own)
        QCOMPARE(action->isEnabled(), enabled);
}

void tst_HostMenus::entriesMayBeTakenAway()
{
    PictureCanvas canvas(support::mosaic({60, 50}));
    canvas.contextMenu()->clear();
    canvas.pasteLabel()->menu()->clear();
    canvas.setSelection(QRect(5, 5, 10, 10));
    canvas.copy();
    canvas.slotClipBoard(false);
    canvas.mergePastePixmap();
    QTest::mousePress(&canvas, Qt::RightButton, {}, QPoint(2, 2));
    canvas.contextMenu()->close();
}

int main(int argc, char** argv)
{
    return support::run<tst_HostMenus>(argc, argv);
}

#include "tst_HostMenus.moc"
