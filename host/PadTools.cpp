#include "PadTools.h"

#include "Recording.h"
#include "Wording.h"

#include "examples/tools/FillTool.h"
#include "examples/tools/PickerTool.h"

#include <KORVA_EditCanvas.h>
#include <RES_ICON_Reader.h>
#include <UTIL_Skin.h>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>

#include <memory>

namespace pad {

namespace {

constexpr struct
{
    std::unique_ptr<KORVA_Tool> (*make)(KORVA_EditCanvas& editor);
    const char* word;
    const char* icon;
    struct
    {
        const char* text;
        const char* comment;
    } name;
} rows[] = {
    // In the order of padtools::Tool.
    {[](KORVA_EditCanvas&) -> std::unique_ptr<KORVA_Tool> { return std::make_unique<FillTool>(); }, "fill",
     "DaApV_Fill_Tool.gif", QT_TRANSLATE_NOOP3("pad::PadTools", "Fill", "tool")},
    {[](KORVA_EditCanvas& editor) -> std::unique_ptr<KORVA_Tool> {
         return std::make_unique<PickerTool>(editor);
     },
     "picker", "DaApV_Picker_Tool.gif", QT_TRANSLATE_NOOP3("pad::PadTools", "Pick color", "tool")},
};

/// A number in the skin's ink, light on a dark desktop.
class NumberIcon : public QIconEngine
{
public:
    explicit NumberIcon(int number) : m_number(number) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        constexpr int side = 20; // of the options' icons
        constexpr int letters = 13;
        QFont font = QApplication::font();
        font.setPixelSize(letters * rect.height() / side);
        font.setBold(true);
        painter->setFont(font);
        painter->setPen(inkOf(mode));
        painter->drawText(rect, Qt::AlignCenter, wording::plainNumber(m_number));
    }
    /// The same one again, or Qt would keep each that is shown.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const QString key = QString("korva number %1 %2x%3 %4")
                                .arg(m_number)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(inkOf(mode).name());
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        painter.end();
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new NumberIcon(m_number); }

private:
    static QColor inkOf(QIcon::Mode mode)
    {
        return UTIL_Skin::color(mode == QIcon::Disabled ? UTIL_Skin::Color::QuietInk
                                                        : UTIL_Skin::Color::Ink);
    }

    int m_number;
};

QList<KORVA_ToolOption> numberedSizes(const QString& name, std::initializer_list<int> sizes)
{
    QList<KORVA_ToolOption> options;
    for (const int size : sizes)
        options.append({QIcon(new NumberIcon(size)), name.arg(wording::plainNumber(size)), size});
    return options;
}

QList<KORVA_ToolOption> textSizes()
{
    return numberedSizes(QCoreApplication::translate("pad::PadTools", "%1 points", "tool option"),
                         {12, 16, 20, 28, 36, 48});
}

/// The first three are the library's own.
QList<KORVA_ToolOption> eraserSizes()
{
    return numberedSizes(QCoreApplication::translate("pad::PadTools", "%1 px", "tool option: pixels"),
                         {1, 3, 5, 10, 20});
}

} // namespace

void padtools::addTo(KORVA_EditCanvas& editor)
{
    KORVA_Features features = editor.features();
    features.zooms = QList<int>(std::begin(zoomRates), std::end(zoomRates));
    editor.setFeatures(features);
    for (const auto& row : rows)
        editor.addTool(row.make(editor), RES_ICON_Reader::getIcon(QString::fromLatin1(row.icon)),
                       QCoreApplication::translate("pad::PadTools", row.name.text, row.name.comment));
}

void padtools::behave(KORVA_EditCanvas& editor, const KORVA_Manners& manners)
{
    editor.setManners(manners);
    KORVA_Features features = editor.features();
    const auto offer = [&](int tool, bool isModern, QList<KORVA_ToolOption> (*sizes)()) {
        const bool isOther = features.ownOptions.contains(tool) != isModern;
        if (isOther && isModern)
            features.ownOptions.insert(tool, sizes());
        else if (isOther)
            features.ownOptions.remove(tool);
        return isOther;
    };
    const bool hasOtherTexts = offer(KORVA_TOOL_TEXT, manners.pointSizes, textSizes);
    const bool hasOtherErasers = offer(KORVA_TOOL_ERASER, manners.joinedEraser, eraserSizes);
    if (hasOtherTexts || hasOtherErasers)
        editor.setFeatures(features);
}

QString padtools::word(int tool)
{
    if (tool >= Fill && tool < Fill + int(std::size(rows)))
        return QString::fromLatin1(rows[tool - Fill].word);
    return KORVA_EditCanvas::toolWord(tool);
}

} // namespace pad
