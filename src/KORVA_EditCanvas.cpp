#include "KORVA_EditCanvas.h"

#include "KORVA_AreaSelect.h"
#include "KORVA_Canvas.h"
#include "KORVA_ClassicPainter.h"
#include "KORVA_ColorPicker.h"
#include "KORVA_Documents.h"
#include "KORVA_MainView.h"
#include "KORVA_Manager.h"
#include "KORVA_PasteLabel.h"
#include "KORVA_PictureFile.h"
#include "KORVA_PictureSave.h"
#include "KORVA_Text.h"
#include "KORVA_ToolTable.h"
#include "RES_ICON_Reader.h"
#include "UTIL_ComboBox.h"
#include "UTIL_PopupMenu.h"
#include "UTIL_PushButton.h"
#include "UTIL_Skin.h"

#include <QCursor>
#include <QScopedValueRollback>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace tables = KORVA_ToolTable;

namespace {

constexpr QRect toolButtonPlace(2, 2, 33, 24);
constexpr QRect optionButtonPlace(38, 2, 33, 24);
constexpr QRect zoomBoxPlace(74, 2, 126, 24);
constexpr QRect colorButtonPlace(203, 2, 25, 24);
constexpr QRect mainViewPlace(2, 33, 228, 192);
constexpr QSize editorSize(240, 225);

constexpr int realSize = 100;
constexpr int realSizeIndex = 1;
constexpr struct
{
    const char* text;
    int rate;
    bool smallPicturesOnly;
} zoomTable[] = {
    {"50%", 50, false},
    {"100%", realSize, false},
    {"150%", 150, true},
    {"200%", 200, true},
};
constexpr int fitToPageIndex = std::size(zoomTable);
constexpr QSize smallPicture(640, 480); // what is narrower and lower may be enlarged
constexpr QSize smallestPage(222, 186);

constexpr struct
{
    int depth;
    KORVA_COLORTYPE colors;
} canvasTypes[] = {
    // The row's number is the KORVA_CANVASTYPE.
    {16, KORVA_COLOR_16BIT}, {1, KORVA_COLOR_1BIT}, {4, KORVA_COLOR_4BIT},
    {8, KORVA_COLOR_8BIT},   {4, KORVA_COLOR_4BIT},
};
constexpr int otherCanvasDepth = 16;

// What an editor has beyond the size that all is laid out for; nothing in one that is smaller.
QSize beyond(const QSize& editor)
{
    return (editor - editorSize).expandedTo(QSize(0, 0));
}

QPushButton* createButton(QWidget* parent, const char* name, const QRect& place, const QString& tip)
{
    auto* button = new UTIL_PushButton({}, {}, parent, name);
    button->setGeometry(place);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

void showIcon(QPushButton* button, const char* name)
{
    const QPixmap icon = name ? RES_ICON_Reader::getIcon(QString::fromLatin1(name)) : QPixmap();
    button->setIcon(icon);
    button->setIconSize(icon.deviceIndependentSize().toSize());
}

void addEntry(QMenu* menu, int id, const char* icon, const QString& name)
{
    QAction* action = menu->addAction(RES_ICON_Reader::getIcon(QString::fromLatin1(icon)), name);
    action->setToolTip(name);
    action->setData(id);
}

} // namespace

KORVA_EditCanvas::KORVA_EditCanvas(KORVA_COLORTYPE colorType, QWidget* parent, const char* name,
                                   Qt::WindowFlags flags, QWidget* ownerWindow)
    : KORVA_EditCanvas(QString(), colorType, parent, name, flags, ownerWindow)
{
}

KORVA_EditCanvas::KORVA_EditCanvas(const QString& fileName, KORVA_COLORTYPE colorType, QWidget* parent,
                                   const char* name, Qt::WindowFlags flags, QWidget* ownerWindow)
    : QWidget(parent, flags), m_ownerWindow(ownerWindow), m_colorType(colorType)
{
    setObjectName(name);
    setPalette(UTIL_Skin::palette());
    createControls();
    m_mainView = new KORVA_MainView(this);
    m_mainView->setFocusPolicy(Qt::StrongFocus);
    m_mainView->setFocus();
    m_mainView->setGeometry(mainViewPlace);
    m_manager = std::make_unique<KORVA_Manager>(canvas());
    clearModified();
    connectControls();
    resize(editorSize);

    m_documents = std::make_unique<KORVA_Documents>(*this);
    if (!fileName.isEmpty())
        m_documents->openAtConstruction(fileName);
}

KORVA_EditCanvas::~KORVA_EditCanvas() = default;

void KORVA_EditCanvas::createControls()
{
    m_toolButton = createButton(this, "toolButton", toolButtonPlace, tr("Tool", "tool bar"));
    m_toolMenu = new UTIL_PopupMenu(m_toolButton);
    int id = tables::toolMenuBase;
    for (const tables::ToolRow& row : tables::tools)
        addEntry(m_toolMenu, id++, row.icon, tr(row.name.text, row.name.comment));
    m_toolButton->setMenu(m_toolMenu);

    m_optionButton = createButton(this, "optionButton", optionButtonPlace, tr("Tool option", "tool bar"));
    m_optionMenu = new UTIL_PopupMenu(m_optionButton);
    m_optionButton->setMenu(m_optionMenu);
    showIcon(m_toolButton, tables::toolRow(tables::Pencil)->icon);
    loadToolOptions(tables::Pencil);
    showIcon(m_optionButton, tables::options[0].icon);

    auto* zoomBox = new UTIL_ComboBox(this);
    m_zoomBox = zoomBox;
    connect(zoomBox, &UTIL_ComboBox::aboutToShowPopup, this,
            [this, zoomBox] { zoomBox->markRow(zoomRow()); });
    m_zoomBox->setObjectName("zoomBox");
    m_zoomBox->setGeometry(zoomBoxPlace);
    m_zoomBox->setToolTip(tr("Zoom", "tool bar"));
    m_zoomBox->setAccessibleName(tr("Zoom", "tool bar"));
    for (const auto& row : zoomTable)
        m_zoomBox->addItem(QString::fromLatin1(row.text));
    m_zoomBox->addItem(tr("Fit to page", "2.11.1;MENU"));
    for (int i = 0; i < m_zoomBox->count(); ++i)
        m_zoomBox->setItemData(i, m_zoomBox->itemText(i), Qt::ToolTipRole);
    m_zoomBox->setCurrentIndex(realSizeIndex);

    m_colorButton = createButton(this, "colorButton", colorButtonPlace, tr("Color", "tool bar"));
    m_colorButton->setFlat(true);
    fillColorButton(m_color);
}

void KORVA_EditCanvas::connectControls()
{
    connect(m_toolMenu, &QMenu::triggered, this,
            [this](const QAction* entry) { slotSelChangeTool(entry->data().toInt()); });
    connect(m_optionMenu, &QMenu::triggered, this,
            [this](const QAction* entry) { slotSelChangeToolOptions(entry->data().toInt()); });
    connect(m_colorButton, &QPushButton::clicked, this, &KORVA_EditCanvas::slotColor);
    connect(m_zoomBox, &QComboBox::activated, this, &KORVA_EditCanvas::slotSelZoomRate);
    connect(canvas(), &KORVA_Canvas::zoomFellBack, this, [this] {
        m_fittedRate = 0;
        m_zoomBox->setCurrentIndex(realSizeIndex);
        updateRubberCursor();
    });
    // A new canvas takes the zoom that the box shows, as if it were chosen once more.
    connect(this, &KORVA_EditCanvas::canvasChanged, m_zoomBox, &QComboBox::activated);
}

KORVA_Canvas* KORVA_EditCanvas::canvas() const
{
    return m_mainView->canvas();
}

void KORVA_EditCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_mainView->setGeometry(QRect(mainViewPlace.topLeft(), mainViewPlace.size() + beyond(size())));
    // What is in hand would be merged by another zoom, and a typed text lose its place.
    const KORVA_Tool* tool = canvas()->getCurrentTool();
    if (canvas()->pasteLabel()->isHidden() && !(tool && tool->takesText()))
        fitAgain();
}

void KORVA_EditCanvas::fitAgain()
{
    const bool isChosen = m_zoomBox->currentIndex() == fitToPageIndex && zoomRow() == fitToPageIndex;
    if (!isChosen || fittingRate() == m_fittedRate)
        return;
    m_fittedRate = fittingRate();
    setZoom(m_fittedRate);
}

// --- Editing
// ---------------------------------------------------------------------------------------------------

void KORVA_EditCanvas::undo()
{
    canvas()->undo();
}

void KORVA_EditCanvas::redo()
{
    canvas()->redo();
}

void KORVA_EditCanvas::cut()
{
    canvas()->cut();
}

void KORVA_EditCanvas::copy()
{
    canvas()->copy();
}

void KORVA_EditCanvas::paste()
{
    canvas()->paste();
}

void KORVA_EditCanvas::paste(int x, int y)
{
    canvas()->paste(x, y);
}

void KORVA_EditCanvas::deleteSelection()
{
    canvas()->deleteSelection();
}

void KORVA_EditCanvas::clearCanvas()
{
    canvas()->clearCanvas(Qt::white);
}

void KORVA_EditCanvas::selectAll()
{
    canvas()->mergePastePixmap();
    m_remembered.selectionMode = 0;
    selectTool(tables::AreaSelect);
    if (auto* areaSelect = qobject_cast<KORVA_AreaSelect*>(m_manager->currentTool()))
        areaSelect->selectAll();
}

QPixmap* KORVA_EditCanvas::pixmap()
{
    commitText();
    return canvas()->pixmap();
}

void KORVA_EditCanvas::setPixmap(QPixmap* picture)
{
    emit canUndo(false);
    emit canRedo(false);
    canvas()->setPixmap(picture);
    fitAgain();
}

int KORVA_EditCanvas::getDepth() const
{
    return canvas()->getDepth();
}

void KORVA_EditCanvas::setDepth(int depth)
{
    canvas()->setDepth(depth);
}

void KORVA_EditCanvas::resizeImage(int w, int h)
{
    canvas()->resizeImage(w, h);
}

bool KORVA_EditCanvas::load(const QString& fileName, const char* format)
{
    return canvas()->load(fileName, format);
}

bool KORVA_EditCanvas::isModified() const
{
    return canvas()->isModified();
}

void KORVA_EditCanvas::clearModified()
{
    canvas()->clearModified();
    m_saved = classic::hash(snapshot());
}

bool KORVA_EditCanvas::hasChanges() const
{
    const KORVA_Text* text = currentText();
    const bool isPending = !canvas()->pasteLabel()->isHidden() || (text && text->takesText());
    return isModified() || (isPending && classic::hash(snapshot()) != m_saved);
}

void KORVA_EditCanvas::insertStamp(QPixmap& stamp)
{
    canvas()->insertStamp(stamp);
}

void KORVA_EditCanvas::setCanvasSize(int w, int h)
{
    if (canvas()->pictureSize() != QSize(w, h))
        canvas()->resize(w, h);
    canvas()->resizeImage(w, h);
    m_mainView->updateLayout();
}

void KORVA_EditCanvas::setZoom(int rate)
{
    canvas()->setZoom(rate);
    updateRubberCursor();
}

void KORVA_EditCanvas::chooseCanvas(KORVA_CANVASTYPE type, int w, int h)
{
    int depth = otherCanvasDepth;
    if (type >= 0 && type < int(std::size(canvasTypes))) {
        depth = canvasTypes[type].depth;
        m_colorType = canvasTypes[type].colors;
    }
    m_documents->forgetOpened();
    clearCanvas();
    setDepth(depth);
    clearModified();
    setCanvasSize(w, h);
    emit canvasChanged(m_zoomBox->currentIndex());
    canvas()->setUndoFlag(false);
}

KORVA_Text* KORVA_EditCanvas::currentText() const
{
    return qobject_cast<KORVA_Text*>(m_manager->currentTool());
}

void KORVA_EditCanvas::commitText()
{
    if (KORVA_Text* text = currentText())
        text->paintProportionBuffer();
}

// --- The controls
// ----------------------------------------------------------------------------------------------

void KORVA_EditCanvas::slotSelChangeTool(int menuId)
{
    const int row = menuId - tables::toolMenuBase;
    const bool known = row >= 0 && row < int(std::size(tables::tools));
    selectTool(known ? tables::tools[row].tool : int(tables::Line));
}

void KORVA_EditCanvas::selectTool(int tool)
{
    const int choice = ++m_choices; // a host that hears of it may choose another one, which stands
    const tables::ToolRow* row = tables::toolRow(tool);
    showIcon(m_toolButton, row->icon);
    if (KORVA_Text* text = currentText(); text && tool != tables::Text) {
        text->clearOldCursor();
        text->paintProportionBuffer();
        text->resetBuffer();
    }
    if (choice != m_choices)
        return;
    m_tool = tool;
    emit signalTextTool(tool == tables::Text);
    if (choice != m_choices)
        return;
    loadToolOptions(tool);
    connect(m_manager->tool(tool), &KORVA_Tool::TextToolClicked, this, &KORVA_EditCanvas::TextToolClicked,
            Qt::UniqueConnection);
    m_manager->setCurrentTool(tool);
    if (choice != m_choices) {
        updateRubberCursor();
        return;
    }
    slotSelChangeToolOptions(m_optionMenu->actions().value(remembered(tool))->data().toInt());
}

int& KORVA_EditCanvas::remembered(int tool)
{
    switch (tables::toolRow(tool)->option) {
    case tables::Option::SelectionMode:
        return m_remembered.selectionMode;
    case tables::Option::Fill:
        return m_remembered.fill;
    default:
        return m_remembered.size;
    }
}

void KORVA_EditCanvas::loadToolOptions(int tool)
{
    m_optionMenu->clear();
    int id = tables::optionMenuBase;
    for (const tables::OptionRow& row : tables::options) {
        if (row.tool == tool)
            addEntry(m_optionMenu, id, row.icon, tr(row.name.text, row.name.comment));
        ++id;
    }
}

void KORVA_EditCanvas::slotSelChangeToolOptions(int menuId)
{
    m_manager->setLMBColor(m_color);

    // The hand is the select tool's other half. What is none of a tool's options counts as its last one.
    const int tool = m_tool == tables::Drag ? int(tables::AreaSelect) : m_tool;
    const tables::OptionRow* chosen = nullptr;
    for (const tables::OptionRow& row : tables::options) {
        if (row.tool != tool)
            continue;
        chosen = &row;
        if (menuId == tables::optionMenuBase + int(&row - tables::options))
            break;
    }
    if (!chosen) {
        showIcon(m_optionButton, nullptr);
        return;
    }

    const int choice = m_choices;
    remembered(tool) = chosen->value;
    if (tool == tables::AreaSelect) {
        m_tool = chosen->value == 0 ? tables::AreaSelect : tables::Drag;
        if (m_tool == tables::AreaSelect) {
            m_manager->setPenWidth(chosen->penWidth);
            m_manager->setLMBColor(Qt::black);
            m_manager->setBrush(Qt::NoBrush);
        }
        m_manager->setCurrentTool(m_tool);
    } else {
        m_manager->setPenWidth(chosen->penWidth);
    }
    if (tool == tables::Rectangle || tool == tables::Ellipse)
        m_manager->setBrush(chosen->value == 0 ? Qt::NoBrush : Qt::SolidPattern);
    if (tool == tables::Eraser)
        m_manager->setLMBColor(Qt::white);
    if (KORVA_Text* text = currentText(); text && !text->getPaintPropotionStatus() && !m_isChangingPen) {
        const QScopedValueRollback isChangingPen(m_isChangingPen, true);
        text->penChanged();
    }
    updateRubberCursor();
    if (choice == m_choices)
        showIcon(m_optionButton, chosen->icon);
}

void KORVA_EditCanvas::slotSelZoomRate(int index)
{
    const int rate = zoomRate(index);
    commitText();
    m_fittedRate = index == fitToPageIndex ? rate : 0;
    setZoom(rate);
}

int KORVA_EditCanvas::zoomRate(int index)
{
    const QSize picture = canvas()->pixmap()->size();
    if (index == fitToPageIndex)
        return fittingRate();
    if (index < 0 || index > fitToPageIndex)
        return realSize;
    const bool isSmall = picture.width() < smallPicture.width() && picture.height() < smallPicture.height();
    return zoomTable[index].smallPicturesOnly && !isSmall ? realSize : zoomTable[index].rate;
}

int KORVA_EditCanvas::fittingRate()
{
    const QSize picture = canvas()->pixmap()->size();
    if (picture.isEmpty())
        return realSize;
    const QSize page = smallestPage + beyond(size());
    return qMax(1, qMin(100 * page.width() / picture.width(), 100 * page.height() / picture.height()));
}

// The row of the rate that is in force; -1 for one that only a host sets.
int KORVA_EditCanvas::zoomRow() const
{
    const int rate = canvas()->zoom();
    if (rate == m_fittedRate)
        return fitToPageIndex;
    const auto* row = std::find_if(std::begin(zoomTable), std::end(zoomTable),
                                   [&](const auto& r) { return r.rate == rate; });
    return row == std::end(zoomTable) ? -1 : int(row - std::begin(zoomTable));
}

void KORVA_EditCanvas::updateRubberCursor()
{
    if (m_manager->currentToolID() == tables::Eraser)
        setRubberCursor(m_manager->currentTool()->leftPen().width(), canvas()->zoom());
}

void KORVA_EditCanvas::setRubberCursor(int width, int rate)
{
    const QPixmap paper = classic::filled(QSize(width, width), Qt::white)
                              .transformed(QTransform::fromScale(rate / 100.0, rate / 100.0));
    QPixmap cursor = classic::filled(paper.size() + QSize(2, 2), Qt::black);
    classic::bitBlt(&cursor, 1, 1, paper);
    canvas()->setCursor(QCursor(cursor, 0, 0));
}

void KORVA_EditCanvas::slotColor()
{
    const QPointer<KORVA_EditCanvas> self = this; // the picker runs an event loop
    const QColor picked = KORVA_ColorPicker::getColor(m_colorType, m_color, this, nullptr);
    if (self)
        setColor(picked);
}

void KORVA_EditCanvas::setColor(const QColor& color)
{
    m_color = color;
    fillColorButton(m_color);
    m_manager->setLMBColor(m_color);
}

void KORVA_EditCanvas::fillColorButton(const QColor& color)
{
    QPixmap swatch = classic::filled(m_colorButton->size(), color);
    {
        KORVA_ClassicPainter painter(&swatch);
        painter.setPen(palette().color(QPalette::Light));
        painter.drawRect(1, 1, swatch.width() - 2, swatch.height() - 2);
    }
    m_colorButton->setIcon(swatch);
    m_colorButton->setIconSize(swatch.size());
}

// --- Documents
// -------------------------------------------------------------------------------------------------

QString KORVA_EditCanvas::fileName() const
{
    return m_documents->fileName();
}

QSize KORVA_EditCanvas::sourceSize() const
{
    return m_documents->sourceSize();
}

bool KORVA_EditCanvas::isReduced() const
{
    return m_documents->isReduced();
}

QImage KORVA_EditCanvas::snapshot() const
{
    return canvas()->snapshot().toImage();
}

QByteArray KORVA_EditCanvas::encoded(const char* format, qsizetype mostBytes) const
{
    return picturesave::encodedWithin(
        snapshot(), format ? QByteArray(format) : picturefile::writeFormat(fileName()), mostBytes);
}

QByteArray KORVA_EditCanvas::encoded(const QImage& snapshot, const char* format, qsizetype mostBytes)
{
    return picturesave::encodedWithin(snapshot, format, mostBytes);
}

QStringList KORVA_EditCanvas::openPatterns()
{
    return picturefile::openPatterns();
}

QStringList KORVA_EditCanvas::savePatterns()
{
    return picturefile::savePatterns();
}

void KORVA_EditCanvas::saveChangePic(int action)
{
    m_documents->saveChanges(action);
}

bool KORVA_EditCanvas::openNewFilePrivate(int flag, const QString& openDocFile)
{
    const std::string_view path = __FILE__;
    const char* source = __FILE__ + path.rfind('/') + 1;
    const QByteArray name = openDocFile.toLatin1();
    std::fprintf(stderr,
                 "{%d} %s:%d\tKORVA_EditCanvas::openNewFilePrivate calling, flag=%d, openDocFile=%s\n\n", 1,
                 source, __LINE__, flag, name.constData());
    if (openDocFile.isNull())
        return m_documents->pickAndOpen(flag);
    std::fprintf(
        stderr,
        "{%d} %s:%d\tKORVA_EditCanvas::openNewFilePrivate, openResult is set to true, openDocFile=%s\n\n",
        1, source, __LINE__, name.constData());
    return m_documents->open(flag, openDocFile);
}

void KORVA_EditCanvas::getFileFormat(const QString& name, QString& format) const
{
    format = QString::fromLatin1(picturefile::readFormat(name));
}

bool KORVA_EditCanvas::isPicSizeNotOver(const QString& name, const char* format)
{
    return m_documents->isPicSizeNotOver(name, format);
}

bool KORVA_EditCanvas::getImage(QImage* image, const QString& name)
{
    const QImage read = KORVA_PictureFile(name, KORVA_PictureFile::Full).take();
    if (read.isNull())
        return false;
    *image = read;
    return true;
}

bool KORVA_EditCanvas::convertScaleImage(QImage* image, QPixmap* pixmap)
{
    *image = picturefile::workingImage(*image);
    return picturefile::convert(*image, pixmap);
}

void KORVA_EditCanvas::setBuffer(const QByteArray& encoded)
{
    m_documents->setBuffer(encoded);
}

bool KORVA_EditCanvas::save(const QString& name, const char* format)
{
    const bool isSaved = picturesave::replace(
        name, [&] { return picturesave::encoded(canvas()->pixmap()->toImage(), format); });
    if (isSaved)
        m_documents->noteSaved(name);
    return isSaved;
}

void KORVA_EditCanvas::saveFilePrivate()
{
    m_documents->saveAndTell();
}

void KORVA_EditCanvas::savePic(int action)
{
    m_documents->nameAndSave(action);
}

void KORVA_EditCanvas::setFileName(const QString& name)
{
    m_documents->setFileName(name);
}

void KORVA_EditCanvas::slotOpen()
{
    m_documents->startOpen();
}

void KORVA_EditCanvas::slotSave()
{
    commitText();
    saveChangePic(2);
}

void KORVA_EditCanvas::slotDelete()
{
    m_documents->askAndDelete();
}

void KORVA_EditCanvas::slotInsertStamp() {}

void KORVA_EditCanvas::slotSaveDlgCloseBeforeOpen(const QString& name)
{
    m_documents->saveUnder(name);
}
