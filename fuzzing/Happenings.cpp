#include "Desk.h"

#include "Fuzz.h"

#include <KORVA_Canvas.h>
#include <KORVA_Manager.h>
#include <KORVA_PasteLabel.h>
#include <KORVA_ScrollView.h>
#include <KORVA_Tool.h>

#include <QApplication>
#include <QClipboard>
#include <QThread>

#include <utility>

namespace fuzz {

namespace {

constexpr int mostSaves = 2; // each starts a shell
constexpr bool hosts = true;
constexpr bool persons = false;

int zoomOf(int byte, int rest)
{
    static constexpr int rates[] = {37, 50, 92, 100, 150, 200, 333, 400, 800, 3200, 1, 50'000};
    return byte < int(std::size(rates)) ? rates[byte] : rest;
}

} // namespace

// A byte of the input is the number of a row; greater ones mean a move. New rows are added at the end, so
// that old inputs keep their meaning.
const Desk::Happening Desk::happenings[] = {
    {"move", [](Desk& d) { d.m_person->move(); }, persons},
    {"press", [](Desk& d) { d.m_person->press(); }, persons},
    {"pressAny", [](Desk& d) { d.m_person->pressAny(); }, persons},
    {"leap", [](Desk& d) { d.m_person->leap(); }, persons},
    {"release", [](Desk& d) { d.m_person->release(); }, persons},
    {"releaseAny", [](Desk& d) { d.m_person->releaseAny(); }, persons},
    {"doubleClick", [](Desk& d) { d.m_person->doubleClick(); }, persons},
    {"wheel", [](Desk& d) { d.m_person->wheel(); }, persons},
    {"pressOnEditor", [](Desk& d) { d.m_person->pressOnEditor(); }, persons},
    {"key", [](Desk& d) { d.m_person->key(); }, persons},
    {"type", [](Desk& d) { d.m_person->type(); }, persons},
    {"compose", [](Desk& d) { d.m_person->compose(); }, persons},
    {"askInputMethod", [](Desk& d) { d.m_person->askInputMethod(); }, persons},
    {"touch", [](Desk& d) { d.m_person->touch(); }, persons},
    {"moveFinger", [](Desk& d) { d.m_person->moveFinger(); }, persons},
    {"lift", [](Desk& d) { d.m_person->lift(); }, persons},
    {"cancelTouch", [](Desk& d) { d.m_person->cancelTouch(); }, persons},
    {"bringPen", [](Desk& d) { d.m_person->bringPen(); }, persons},
    {"takePenAway", [](Desk& d) { d.m_person->takePenAway(); }, persons},
    {"penDown", [](Desk& d) { d.m_person->penDown(); }, persons},
    {"penMove", [](Desk& d) { d.m_person->penMove(); }, persons},
    {"penUp", [](Desk& d) { d.m_person->penUp(); }, persons},

    // Choices.
    {"tool", [](Desk& d) { d.m_editor->selectTool(d.m_bytes.below(12)); }, hosts},
    {"option", [](Desk& d) { d.m_editor->selectOption(d.m_bytes.below(8)); }, hosts},
    {"zoomRow", [](Desk& d) { d.m_editor->selectZoom(d.m_bytes.below(8)); }, hosts},
    {"stepZoom", [](Desk& d) { d.m_editor->stepZoom(d.m_bytes.chance() ? 1 : -1); }, hosts},
    {"zoom",
     [](Desk& d) {
         const int byte = d.m_bytes.next();
         d.m_editor->setZoom(zoomOf(byte, d.m_bytes.number()));
     },
     hosts},
    {"color", [](Desk& d) { d.m_editor->setColor(d.color()); }, hosts},
    {"width", [](Desk& d) { d.m_editor->manager()->setPenWidth(d.m_bytes.below(60)); }, hosts},
    {"brush",
     [](Desk& d) { d.m_editor->manager()->setBrush(d.m_bytes.chance() ? Qt::SolidPattern : Qt::NoBrush); }, hosts},
    {"colors",
     [](Desk& d) {
         d.m_editor->manager()->setLMBColor(d.color());
         d.m_editor->manager()->setRMBColor(d.color());
     },
     hosts},
    {"managersTool", [](Desk& d) { d.m_editor->manager()->setCurrentTool(d.m_bytes.between(-1, 9)); }, hosts},
    {"fingerUse",
     [](Desk& d) {
         d.canvas().setFingerUse(d.m_bytes.chance() ? KORVA_Canvas::FingerPans : KORVA_Canvas::FingerDraws);
     },
     hosts},
    {"keyboardDrawing", [](Desk& d) { d.canvas().setKeyboardDrawing(d.m_bytes.chance()); }, hosts},
    {"slotTool", [](Desk& d) { d.m_editor->slotSelChangeTool(100 + d.m_bytes.below(12)); }, hosts},
    {"slotOption", [](Desk& d) { d.m_editor->slotSelChangeToolOptions(200 + d.m_bytes.below(24)); }, hosts},
    {"slotZoom", [](Desk& d) { d.m_editor->slotSelZoomRate(d.m_bytes.between(-1, 8)); }, hosts},
    {"slotColor", [](Desk& d) { d.m_editor->slotColor(); }, hosts},

    // Editing.
    {"undo", [](Desk& d) { d.m_editor->undo(); }, hosts},
    {"redo", [](Desk& d) { d.m_editor->redo(); }, hosts},
    {"cut", [](Desk& d) { d.m_editor->cut(); }, hosts},
    {"copy", [](Desk& d) { d.m_editor->copy(); }, hosts},
    {"paste", [](Desk& d) { d.m_editor->paste(); }, hosts},
    {"pasteAt",
     [](Desk& d) {
         const QPoint at = d.place();
         d.m_editor->paste(at.x(), at.y());
     },
     hosts},
    {"clipboard", [](Desk& d) { QGuiApplication::clipboard()->setPixmap(d.picture()); }, hosts},
    {"clipText", [](Desk&) { QGuiApplication::clipboard()->setText("no picture"); }, hosts},
    {"delete", [](Desk& d) { d.m_editor->deleteSelection(); }, hosts},
    {"selectAll", [](Desk& d) { d.m_editor->selectAll(); }, hosts},
    {"select",
     [](Desk& d) {
         const QPoint from = d.place();
         d.canvas().setSelection(QRect(from, d.place()));
     },
     hosts},
    {"clearSelection", [](Desk& d) { d.canvas().clearSelection(); }, hosts},
    {"stamp",
     [](Desk& d) {
         QPixmap picture = d.picture();
         d.m_editor->insertStamp(picture);
     },
     hosts},
    {"merge", [](Desk& d) { d.canvas().mergePastePixmap(); }, hosts},
    {"dropPiece", [](Desk& d) { d.canvas().dropPiece(); }, hosts},
    {"placePiece", [](Desk& d) { d.canvas().placePiece(d.place()); }, hosts},
    {"changePiece",
     [](Desk& d) { d.canvas().pasteLabel()->change(KORVA_PasteLabel::Change(d.m_bytes.below(6))); }, hosts},
    {"movePiece", [](Desk& d) { d.canvas().pasteLabel()->moveBy(d.place()); }, hosts},
    {"stretchPiece", [](Desk& d) { d.canvas().pasteLabel()->stretchBy(d.place()); }, hosts},
    {"turnPiece", [](Desk& d) { d.canvas().pasteLabel()->turn(d.m_bytes.chance()); }, hosts},
    {"commitText", [](Desk& d) { d.m_editor->commitText(); }, hosts},
    {"clear", [](Desk& d) { d.m_editor->clearCanvas(); }, hosts},
    {"fill", [](Desk& d) { d.canvas().clearCanvas(d.color()); }, hosts},
    {"paint", [](Desk& d) { d.paint(); }, hosts},

    // The picture and its canvas.
    {"setPixmap",
     [](Desk& d) {
         QPixmap picture = d.picture();
         d.m_editor->setPixmap(d.m_bytes.below(8) == 7 ? nullptr : &picture);
     },
     hosts},
    {"paper", [](Desk& d) { d.m_editor->setPaper(d.m_bytes.chance() ? d.picture().toImage() : QImage()); }, hosts},
    {"chooseCanvas",
     [](Desk& d) {
         const int type = d.m_bytes.below(7);
         const QSize size = d.size();
         d.m_editor->chooseCanvas(KORVA_CANVASTYPE(qMin(type, 4)), size.width(), size.height());
     },
     hosts},
    {"canvasSize",
     [](Desk& d) {
         const QSize size = d.size();
         d.m_editor->setCanvasSize(size.width(), size.height());
     },
     hosts},
    {"resize",
     [](Desk& d) {
         const QSize size = d.size();
         d.m_editor->resizeImage(size.width(), size.height());
     },
     hosts},
    {"depth",
     [](Desk& d) {
         static constexpr int depths[] = {1, 4, 8, 15, 16, 24, 32};
         d.m_editor->setDepth(depths[d.m_bytes.below(std::size(depths))]);
     },
     hosts},
    {"history",
     [](Desk& d) {
         static constexpr int steps[] = {1, 2, 5, 50};
         static constexpr qint64 bytes[] = {4 << 20, 64 << 20, 10'000, 0};
         const int most = steps[d.m_bytes.below(std::size(steps))];
         d.m_editor->setUndoSteps(most, bytes[d.m_bytes.below(std::size(bytes))]);
     },
     hosts},
    {"snapshotTaken", [](Desk& d) { d.canvas().saveOldPix(); }, hosts},
    {"step",
     [](Desk& d) {
         d.m_isStepOpen = !d.m_isStepOpen;
         d.m_isStepOpen ? d.canvas().beginStep() : d.canvas().endStep();
     },
     hosts},
    {"undoFlag", [](Desk& d) { d.canvas().setUndoFlag(d.m_bytes.between(-1, 3)); }, hosts},
    {"markModified", [](Desk& d) { d.canvas().markModified(); }, hosts},
    {"clearModified", [](Desk& d) { d.m_editor->clearModified(); }, hosts},
    {"updateZoomed", [](Desk& d) { d.canvas().updateZoomed(); }, hosts},
    {"facts",
     [](Desk& d) {
         (void)d.m_editor->hasChanges();
         (void)d.m_editor->isReduced();
         (void)d.m_editor->snapshot();
     },
     hosts},
    {"encode",
     [](Desk& d) {
         static constexpr const char* formats[] = {"PNG", "JPEG", "BMP", "GIF", nullptr};
         const char* format = formats[d.m_bytes.below(std::size(formats))];
         (void)d.m_editor->encoded(format, d.m_bytes.chance() ? d.m_bytes.number() : 0);
     },
     hosts},

    // Documents.
    {"open", [](Desk& d) { (void)d.m_editor->openNewFilePrivate(d.m_bytes.below(5), d.file()); }, hosts},
    {"encoded",
     [](Desk& d) {
         const QString name = d.file();
         QFile file(name);
         const QByteArray bytes =
             !name.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
         d.m_bytes.chance() ? (void)d.m_editor->setEncoded(bytes) : d.m_editor->setBuffer(bytes);
     },
     hosts},
    {"setFileName", [](Desk& d) { d.m_editor->setFileName(d.file()); }, hosts},
    {"save", [](Desk& d) {
         static constexpr const char* formats[] = {"PNG", "JPEG", "BMP"};
         const QString name = d.file();
         const char* format = formats[d.m_bytes.below(std::size(formats))];
         ++d.m_saves > mostSaves ? void() : void(d.m_editor->save(name, format));
     }, hosts},
    {"slotOpen", [](Desk& d) { d.m_editor->slotOpen(); }, hosts},
    {"slotSave", [](Desk& d) { ++d.m_saves > mostSaves ? void() : d.m_editor->slotSave(); }, hosts},
    {"slotDelete", [](Desk& d) { d.m_editor->slotDelete(); }, hosts},
    {"saveChangePic",
     [](Desk& d) {
         const int action = d.m_bytes.below(5);
         ++d.m_saves > mostSaves ? void() : d.m_editor->saveChangePic(action);
     },
     hosts},

    // The editor as a widget, and its host.
    {"features", [](Desk& d) { d.m_editor->setFeatures(d.features()); }, hosts},
    {"manners", [](Desk& d) { d.m_editor->setManners(d.manners()); }, hosts},
    {"addTool", [](Desk& d) { d.addTool(); }, hosts},
    {"reset", [](Desk& d) { d.m_editor->reset(); }, hosts},
    {"cancelDialogs", [](Desk& d) { d.m_editor->cancelDialogs(); }, hosts},
    {"loadToolOptions", [](Desk& d) { d.m_editor->loadToolOptions(d.m_bytes.between(-1, 12)); }, hosts},
    {"rubberCursor",
     [](Desk& d) {
         const int width = d.m_bytes.below(60);
         d.m_editor->setRubberCursor(width, zoomOf(d.m_bytes.below(9), 100));
     },
     hosts},
    {"hide", [](Desk& d) { d.m_window.hide(); }, persons},
    {"show", [](Desk& d) { d.m_window.show(); }, persons},
    {"hideEditor", [](Desk& d) { d.m_editor->setVisible(d.m_bytes.chance()); }, hosts},
    {"enable", [](Desk& d) { d.m_editor->setEnabled(d.m_bytes.chance()); }, hosts},
    {"resizeEditor",
     [](Desk& d) {
         const QPoint more = d.place();
         d.m_editor->resize(240 + more.x(), 225 + more.y());
     },
     hosts},
    {"mirror",
     [](Desk& d) { d.m_editor->setLayoutDirection(d.m_bytes.chance() ? Qt::RightToLeft : Qt::LeftToRight); }, hosts},
    {"focus", [](Desk& d) { d.m_bytes.chance() ? d.canvas().setFocus() : d.canvas().clearFocus(); }, hosts},
    {"scroll",
     [](Desk& d) {
         const QPoint to = d.place();
         d.canvas().scrollView()->setContentsPos(to.x(), to.y());
     },
     hosts},
    {"react", [](Desk& d) { d.m_reactions = d.m_bytes.between(1, 6); }, persons},
    {"tick",
     [](Desk& d) {
         QTimerEvent event(1);
         QCoreApplication::sendEvent(d.m_editor->manager()->currentTool(), &event);
     },
     persons},
    {"wait",
     [](Desk& d) {
         constexpr int fingersPatience = 65; // ms
         if (!std::exchange(d.m_hasWaited, true))
             QThread::msleep(fingersPatience);
     },
     persons},
    {"deleteEditor", [](Desk& d) { d.m_depth == 0 ? d.deleteEditor() : d.m_editor->deleteLater(); }, hosts},
    {"deleteLater", [](Desk& d) { d.m_editor->deleteLater(); }, hosts},
};

const Desk::Happening& Desk::rowOf(int number)
{
    return happenings[number < int(std::size(happenings)) ? number : 0];
}

} // namespace fuzz
