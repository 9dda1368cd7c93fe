#include "TextLife.h"

namespace {

using textlife::Bench;
using textlife::far, textlife::near, textlife::tap, textlife::there;

struct Named
{
    const char* name;
    textlife::Act act;
};

void typeLetter(Bench& b)
{
    b.press(tap);
    b.stylus.release(tap);
    b.key(Qt::Key_A, "a");
}

const Named states[] = {
    {"never tapped", [](Bench&) {}},
    {"pressed", [](Bench& b) { b.press(tap); }},
    {"closed",
     [](Bench& b) {
         typeLetter(b);
         b.press(there);
         b.stylus.release(there + far);
     }},
    {"pressed again",
     [](Bench& b) {
         typeLetter(b);
         b.press(there);
     }},
    {"left",
     [](Bench& b) {
         typeLetter(b);
         b.leave();
     }},
    {"left pressed",
     [](Bench& b) {
         b.press(tap);
         b.leave();
     }},
    {"done",
     [](Bench& b) {
         typeLetter(b);
         b.tool.paintProportionBuffer();
         b.press(there);
         b.stylus.release(there + far);
     }},
    {"open",
     [](Bench& b) {
         b.press(tap);
         b.stylus.release(tap);
     }},
    {"dark",
     [](Bench& b) {
         b.press(tap);
         b.stylus.release(tap);
         b.tick();
     }},
    {"typed", typeLetter},
    {"composing",
     [](Bench& b) {
         typeLetter(b);
         b.compose("x");
     }},
    {"open again",
     [](Bench& b) {
         typeLetter(b);
         b.press(there);
         b.stylus.release(there);
     }},
    {"going on",
     [](Bench& b) {
         typeLetter(b);
         b.tool.paintProportionBuffer();
     }},
    {"canvas gone",
     [](Bench& b) {
         typeLetter(b);
         b.canvas.reset();
     }},
};

const Named events[] = {
    {"press", [](Bench& b) { b.press(there); }},
    {"right press", [](Bench& b) { b.press(there, Qt::RightButton); }},
    {"release near", [](Bench& b) { b.stylus.release(b.pressed + near); }},
    {"release far", [](Bench& b) { b.stylus.release(b.pressed + far); }},
    {"right release", [](Bench& b) { b.stylus.release(b.pressed, Qt::RightButton); }},
    {"letter", [](Bench& b) { b.key(Qt::Key_B, "b"); }},
    {"tab", [](Bench& b) { b.key(Qt::Key_Tab, "\t"); }},
    {"Return", [](Bench& b) { b.key(Qt::Key_Return, "\r"); }},
    {"Backspace", [](Bench& b) { b.key(Qt::Key_Backspace, "\b"); }},
    {"Escape", [](Bench& b) { b.key(Qt::Key_Escape, "\x1b"); }},
    {"compose", [](Bench& b) { b.compose("y"); }},
    {"cancel", [](Bench& b) { b.compose({}); }},
    {"commit", [](Bench& b) { b.compose({}, "b"); }},
    {"letter again", [](Bench& b) { b.again("b"); }},
    {"penChanged", [](Bench& b) { b.tool.penChanged(); }},
    {"resetBuffer", [](Bench& b) { b.tool.resetBuffer(); }},
    {"paintBuffer", [](Bench& b) { b.tool.paintBuffer(); }},
    {"paintProportion", [](Bench& b) { b.tool.paintProportionBuffer(); }},
    {"clearOldCursor", [](Bench& b) { b.tool.clearOldCursor(); }},
    {"tick", [](Bench& b) { b.tick(); }},
    {"rebuilt", [](Bench& b) { b.canvas ? b.canvas->updateZoomed() : b.tool.zoomedRebuilt(); }},
    {"leave", [](Bench& b) { b.leave(); }},
    {"leave, come",
     [](Bench& b) {
         b.leave();
         b.come();
     }},
    {"letter: leave",
     [](Bench& b) {
         b.host = [&b] { b.leave(); };
         b.key(Qt::Key_B, "b");
     }},
    {"letter: paint",
     [](Bench& b) {
         b.host = [&b] { b.tool.paintProportionBuffer(); };
         b.key(Qt::Key_B, "b");
     }},
    {"commit: leave",
     [](Bench& b) {
         b.host = [&b] { b.leave(); };
         b.compose("y", "b");
     }},
    {"press: leave",
     [](Bench& b) {
         b.host = [&b] { b.leave(); };
         b.press(there);
     }},
    {"press: come back",
     [](Bench& b) {
         b.host = [&b] {
             b.leave();
             b.come();
         };
         b.press(there);
     }},
    {"paint: paint",
     [](Bench& b) {
         b.host = [&b] { b.tool.paintProportionBuffer(); };
         b.tool.paintBuffer();
     }},
    {"paint: letter",
     [](Bench& b) {
         b.host = [&b] { b.key(Qt::Key_B, "b"); };
         b.tool.paintBuffer();
     }},
    {"paint: reset",
     [](Bench& b) {
         b.host = [&b] { b.tool.resetBuffer(); };
         b.tool.paintProportionBuffer();
     }},
    {"merge: paint",
     [](Bench& b) {
         b.floatPiece();
         b.host = [&b] { b.tool.paintProportionBuffer(); };
         b.tool.paintBuffer();
     }},
    {"merge: leave",
     [](Bench& b) {
         b.floatPiece();
         b.host = [&b] { b.leave(); };
         b.tool.paintBuffer();
     }},
    {"merge: letter",
     [](Bench& b) {
         b.floatPiece();
         b.host = [&b] { b.key(Qt::Key_B, "b"); };
         b.tool.paintBuffer();
     }},
    {"penChanged: leave",
     [](Bench& b) {
         b.host = [&b] { b.leave(); };
         b.tool.penChanged();
     }},
};

// What each event does in each state, in short:
//
//   C closed, P pressed (a release of the left button opens a text), R (of the right one), O open,
//   the open text (+ behind the a, ~ where the second press was, ^ two pixels from a press),
//   I the I-beam is on screen, (...) other letters than the text's are,
//   =... what got into the picture,
//   then as they came: m modified, c TextToolClicked, r the composition was ended, i the event was ignored,
//   s undo now brings back what was just before the event,
//   and behind the slash: e empty, k undo is held back, w went on, t the I-beam blinks.
//
// "letter: leave" is a letter of which the host hears by modified(), whereupon it leaves the tool; so the
// others.

const char* const withoutText = R"(
event             | never tapped | pressed  | closed   | pressed again | left | left pressed | done
press             | P/           | P/       | P/       | P/            | P/   | P/           | P/ew
right press       | R/           | R/       | R/       | R/            | R/   | R/           | R/ew
release near      | C/           | O^Ic/et  | C/       | O^~Ic/et      | C/   | Cc/          | C/ew
release far       | C/           | Cc/      | C/       | Cc/           | C/   | Cc/          | C/ew
right release     | C/           | P/       | C/       | P/            | C/   | P/           | C/ew
letter            | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
tab               | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
Return            | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
Backspace         | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
Escape            | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
compose           | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
cancel            | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
commit            | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
letter again      | C/           | P/       | C/       | P/            | C/   | P/           | C/ew
penChanged        | Cms/e        | Cms/e    | Cms/e    | Cms/e         | C/e  | C/e          | Cms/ew
resetBuffer       | C/           | P/       | C/e      | P/e           | C/e  | P/           | C/ew
paintBuffer       | Cms/         | Pms/     | Cms/     | Pms/          | C/   | P/           | Cms/ew
paintProportion   | Cms/ew       | Pms/ew   | Cms/ew   | Pms/ew        | C/ew | P/ew         | Cms/ew
clearOldCursor    | C/           | P/       | C/       | P/            | C/   | P/           | C/ew
tick              | CI/          | PI/      | CI/      | PI/           | C/   | P/           | CI/ew
rebuilt           | C/           | P/       | C/       | P/            | C/   | P/           | C/ew
leave             | Cms/         | Pms/     | Cms/     | Pms/          | C/   | P/           | Cms/ew
leave, come       | Cms/         | Pms/     | Cms/     | Pms/          | C/   | P/           | Cms/ew
letter: leave     | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
letter: paint     | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
commit: leave     | Ci/          | Pi/      | Ci/      | Pi/           | Ci/  | Pi/          | Ci/ew
press: leave      | P/           | P/       | P/       | P/            | P/   | P/           | P/ew
press: come back  | P/           | P/       | P/       | P/            | P/   | P/           | P/ew
paint: paint      | Cms/ew       | Pms/ew   | Cms/ew   | Pms/ew        | C/   | P/           | Cms/ew
paint: letter     | Cmis/        | Pmis/    | Cmis/    | Pmis/         | C/   | P/           | Cmis/ew
paint: reset      | Cms/ew       | Pms/ew   | Cms/ew   | Pms/ew        | C/ew | P/ew         | Cms/ew
merge: paint      | Cmmms/ew     | Pmmms/ew | Cmmms/ew | Pmmms/ew      | Cs/  | Ps/          | Cmmms/ew
merge: leave      | Cmms/        | Pmms/    | Cmms/    | Pmms/         | Cs/  | Ps/          | Cmms/ew
merge: letter     | Cmims/       | Pmims/   | Cmims/   | Pmims/        | Cs/  | Ps/          | Cmims/ew
penChanged: leave | Cms/e        | Cms/e    | Cms/e    | Cms/e         | C/e  | C/e          | Cms/ew
)";

const char* const withText = R"(
event             | open        | dark        | typed        | composing    | open again    | going on    | canvas gone
press             | Prms/e      | Prms/e      | P=arms/      | P=arms/      | Prms/e        | Prms/ew     | Cr/
right press       | Rrms/e      | Rrms/e      | R=arms/      | R=arms/      | Rrms/e        | Rrms/ew     | Cr/
release near      | OI/et       | O/et        | OaI/kt       | OaI(ax)/kt   | O~I/et        | O+/ew       | O/kt
release far       | OI/et       | O/et        | OaI/kt       | OaI(ax)/kt   | O~I/et        | O+/ew       | O/kt
right release     | OI/et       | O/et        | OaI/kt       | OaI(ax)/kt   | O~I/et        | O+/ew       | O/kt
letter            | ObIm/kt     | Obm/kt      | OabIm/kt     | OabIm/kt     | O~bIm/kt      | O+bm/k      | Oi/kt
tab               | O→Im/kt     | O→m/kt      | Oa→Im/kt     | Oa→Im/kt     | O~→Im/kt      | O+→m/k      | Oi/kt
Return            | O¶/kt       | O¶/kt       | Oa¶/kt       | Oa¶/kt       | O~¶/kt        | O¶/kw       | Oi/kt
Backspace         | OI/ekt      | O/ekt       | O/ekt        | O/ekt        | O~I/ekt       | O+/ekw      | Oi/kt
Escape            | OIi/et      | Oi/et       | OaIi/kt      | OaI(ax)i/kt  | O~Ii/et       | O+i/ew      | Oi/kt
compose           | OI(y)/et    | O(y)/et     | OaI(ay)/kt   | OaI(ay)/kt   | O~I(y)/et     | O+(y)/ew    | Oi/kt
cancel            | OI/et       | O/et        | OaI/kt       | OaI/kt       | O~I/et        | O+/ew       | Oi/kt
commit            | ObIm/kt     | Obm/kt      | OabIm/kt     | OabIm/kt     | O~bIm/kt      | O+bm/k      | Oi/kt
letter again      | ObIm/kt     | Obm/kt      | OabIm/kt     | OabIm/kt     | O~bIm/kt      | O+bm/kw     | O/kt
penChanged        | Oms/et      | Oms/et      | Oamms/kt     | Oamms/kt     | O~ms/et       | O+ms/ew     | O/et
resetBuffer       | O/et        | O/et        | O/et         | O/et         | O~/et         | O+/ew       | O/et
paintBuffer       | Oms/et      | Oms/et      | O+=ams/t     | O+=ams/t     | O~ms/et       | O+ms/ew     | O/t
paintProportion   | Oms/ew      | Oms/ew      | O+=ams/ew    | O+=ams/ew    | O~ms/ew       | O+ms/ew     | O/ew
clearOldCursor    | O/et        | O/et        | Oa/kt        | Oa(ax)/kt    | O~/et         | O+/ew       | O/kt
tick              | O/et        | OI/et       | Oa/kt        | Oa(ax)/kt    | O~/et         | O+I/ew      | O/kt
rebuilt           | O/et        | O/et        | Oa()/kt      | Oa()/kt      | O~/et         | O+/ew       | O/kt
leave             | Crms/e      | Crms/e      | C=arms/      | C=arms/      | Crms/e        | Crms/ew     | O/kt
leave, come       | Crms/e      | Crms/e      | C=arms/      | C=arms/      | Crms/e        | Crms/ew     | O/kt
letter: leave     | C=bmrms/    | C=bmrms/    | C=abmrms/    | C=abmrms/    | C=~bmrms/     | C=+bmrms/   | Oi/kt
letter: paint     | O+=bmms/ew  | O+=bmms/ew  | O+=abmms/ew  | O+=abmms/ew  | O~+=~bmms/ew  | O+=+bmms/ew | Oi/kt
commit: leave     | C=bmrms/    | C=bmrms/    | C=abmrms/    | C=abmrms/    | C=~bmrms/     | C=+bmrms/   | Oi/kt
press: leave      | Prmrs/e     | Prmrs/e     | P=armrs/     | P=armrs/     | Prmrs/e       | Prmrs/ew    | Cr/
press: come back  | Prmrs/e     | Prmrs/e     | P=armrs/     | P=armrs/     | Prmrs/e       | Prmrs/ew    | Cr/
paint: paint      | Oms/ew      | Oms/ew      | O+=ams/ew    | O+=ams/ew    | O~ms/ew       | O+ms/ew     | O/t
paint: letter     | Obmms/kt    | Obmms/kt    | Oab=amms/kt  | Oab=amms/kt  | O~bmms/kt     | O+bmms/k    | O/t
paint: reset      | Oms/ew      | Oms/ew      | O=ams/ew     | O=ams/ew     | O~ms/ew       | O+ms/ew     | O/ew
merge: paint      | Ommms/ew    | Ommms/ew    | O+=ammms/ew  | O+=ammms/ew  | O~mmms/ew     | O+mmms/ew   | O/t
merge: leave      | Cmrms/e     | Cmrms/e     | C=amrms/     | C=amrms/     | Cmrms/e       | Cmrms/ew    | O/t
merge: letter     | O+=bmmms/kt | O+=bmmms/kt | O+=abmmms/kt | O+=abmmms/kt | O~+=~bmmms/kt | O+=+bmmms/k | O/t
penChanged: leave | Cmrs/e      | Cmrs/e      | Cmrs/e       | Cmrs/e       | Cmrs/e        | Cmrs/ew     | O/et
)";

QStringList cells(const QString& line)
{
    QStringList found = line.split('|');
    for (QString& cell : found)
        cell = cell.trimmed();
    return found;
}

template <std::size_t N>
textlife::Act named(const Named (&list)[N], const QString& name)
{
    const auto* const found = std::find_if(std::begin(list), std::end(list),
                                           [&](const auto& entry) { return entry.name == name; });
    return found == std::end(list) ? nullptr : found->act;
}

} // namespace

// Stands before the toolkit's own, which says nothing without an input method.
void QInputMethod::reset()
{
    textlife::heardOf += 'r';
}

/// Every event in every state that a text can be in.
class tst_TextStates : public support::TestCase
{
    Q_OBJECT

private slots:
    void everyEventInEveryState_data();
    void everyEventInEveryState();
};

void tst_TextStates::everyEventInEveryState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("outcome");
    std::size_t count = 0;
    for (const char* table : {withoutText, withText}) {
        const QStringList lines = QString::fromUtf8(table).split('\n', Qt::SkipEmptyParts);
        const QStringList inState = cells(lines[0]);
        for (const QString& line : lines.mid(1)) {
            const QStringList row = cells(line);
            for (qsizetype i = 1; i < row.size(); ++i, ++count)
                QTest::addRow("%s, %s", qPrintable(inState[i]), qPrintable(row[0]))
                    << inState[i] << row[0] << row[i];
        }
    }
    QCOMPARE(count, std::size(states) * std::size(events)); // none is left out
}

void tst_TextStates::everyEventInEveryState()
{
    QFETCH(const QString, state);
    QFETCH(const QString, event);
    QFETCH(const QString, outcome);
    const textlife::Act enter = named(states, state);
    const textlife::Act act = named(events, event);
    QVERIFY(enter && act);
    textlife::Bench bench;
    enter(bench);
    QCOMPARE(textlife::outcome(bench, act), outcome);
}

int main(int argc, char** argv)
{
    return support::run<tst_TextStates>(argc, argv);
}

#include "tst_TextStates.moc"
