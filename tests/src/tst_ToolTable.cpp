#include "KORVA_Canvas.h"
#include "KORVA_EditCanvas.h"
#include "KORVA_Manager.h"
#include "KORVA_ToolTable.h"
#include "RES_ICON_Reader.h"
#include "support/TestCase.h"

namespace tables = KORVA_ToolTable;

/// All that names the tools says the same.
class tst_ToolTable : public support::TestCase
{
    Q_OBJECT

private slots:
    void everyToolIsWholeAndItself_data();
    void everyToolIsWholeAndItself();
    void theManagerHasThem();
    void thePopupHasAPlaceForEach();
    void optionsAreNumberedThrough();
    void hostsLearnTheirNames();
    void theGuideNamesThem();
};

void tst_ToolTable::everyToolIsWholeAndItself_data()
{
    QTest::addColumn<int>("tool");
    int tool = 0;
    for (const tables::ToolRow& row : tables::tools())
        QTest::newRow(row.word) << tool++;
}

void tst_ToolTable::everyToolIsWholeAndItself()
{
    QFETCH(const int, tool);
    const tables::ToolRow& row = *tables::toolRow(tool);
    int same = 0;
    for (const tables::ToolRow& other : tables::tools()) {
        same += qstrcmp(other.word, row.word) == 0;
        same += qstrcmp(other.name.text, row.name.text) == 0;
    }
    QCOMPARE(same, 2);
    QVERIFY(row.make("x"));
    QCOMPARE(row.options.empty(), row.place == tables::noPlace);
    if (row.place != tables::noPlace)
        QVERIFY(!RES_ICON_Reader::getIcon(row.icon).isNull());
    for (const tables::OptionRow& option : row.options)
        QVERIFY(!RES_ICON_Reader::getIcon(option.icon).isNull());
}

void tst_ToolTable::theManagerHasThem()
{
    KORVA_Canvas canvas(nullptr, 10, 10);
    const KORVA_Manager manager(&canvas);
    int tool = 0;
    for (const tables::ToolRow& row : tables::tools()) {
        QCOMPARE(manager.tool(tool)->name(), row.toolName);
        QCOMPARE(manager.tool(tool)->id(), tool);
        ++tool;
    }
    QVERIFY(!manager.tool(tool));
}

void tst_ToolTable::thePopupHasAPlaceForEach()
{
    QList<int> placed;
    for (int place = 0; tables::toolAt(place) >= 0; ++place)
        placed.append(tables::toolAt(place));
    QCOMPARE(placed, QList<int>({tables::AreaSelect, tables::Eraser, tables::Line, tables::Pencil,
                                 tables::Text, tables::Rectangle, tables::Ellipse}));
    QCOMPARE(tables::toolAt(-1), -1);
}

void tst_ToolTable::optionsAreNumberedThrough()
{
    QList<int> firsts;
    for (int tool = tables::Pencil; tool <= tables::Eraser; ++tool)
        firsts.append(tables::firstOptionId(tool));
    QCOMPARE(firsts, QList<int>({200, 203, 205, 208, 211, 213, 215}));
}

void tst_ToolTable::hostsLearnTheirNames()
{
    QCOMPARE(KORVA_EditCanvas::toolName(tables::AreaSelect), "Select");
    QCOMPARE(KORVA_EditCanvas::toolWord(tables::Drag), "hand");
    for (const int none : {-1, int(tables::tools().size())}) {
        QCOMPARE(KORVA_EditCanvas::toolName(none), "");
        QCOMPARE(KORVA_EditCanvas::toolWord(none), "");
    }
}

void tst_ToolTable::theGuideNamesThem()
{
    QFile file(KORVA_SOURCE_DIR "/docs/recording.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString guide = QString::fromUtf8(file.readAll());
    QStringList words;
    for (const tables::ToolRow& row : tables::tools())
        words.append(QString("`%1`").arg(row.word));
    const QString last = words.takeLast();
    QVERIFY(guide.contains("| `tool NAME` | chooses " + words.join(", ") + " or " + last + " |"));
}

int main(int argc, char** argv)
{
    return support::run<tst_ToolTable>(argc, argv);
}

#include "tst_ToolTable.moc"
