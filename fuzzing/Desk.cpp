#include "Desk.h"

#include "Fuzz.h"

#include "examples/tools/FillTool.h"
#include "examples/tools/PolygonTool.h"

#include <KORVA_Assert.h>
#include <KORVA_Canvas.h>
#include <KORVA_Manager.h>
#include <KORVA_Zoom.h>

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QPainter>

namespace fuzz {

namespace {

constexpr int deepest = 2; ///< what a host does in a slot may make it hear another signal
constexpr int largestSide = 2000;
constexpr int opacityEvery = 32;

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

QImage filled(QSize size, QImage::Format format, Qt::GlobalColor color)
{
    QImage image(size, format);
    image.fill(color);
    return image;
}

/// The same for every input, whatever the one before has saved and removed.
void makeFiles()
{
    static const QByteArray photo =
        encoded(filled(QSize(480, 360), QImage::Format_RGB32, Qt::darkGreen), "JPEG");
    static const QByteArray icon =
        encoded(filled(QSize(9, 7), QImage::Format_ARGB32, Qt::transparent), "PNG");
    QDir().mkdir(folder() + "/appwrite");
    write("photo.jpg", photo);
    write("icon.png", icon);
    write("damaged.gif", QByteArray("GIF89a\1\0\1\0", 10));
    for (const char* name : {"/missing.png", "/drawing.bmp"})
        QFile::remove(folder() + name);
}

} // namespace

Desk::Desk(const QByteArray& input, Services& services) : m_bytes(input), m_services(services)
{
    makeFiles();
    services.choose = [this](int answers) { return m_bytes.below(answers); };
    services.whileOpen = [this] { beAsked(); };
    services.fileName.clear();
    m_window.resize(260, 240);
    QGuiApplication::clipboard()->clear();
    makeEditor();
    m_window.show();
}

Desk::~Desk()
{
    deleteEditor();
    m_services.choose = nullptr;
    m_services.whileOpen = nullptr;
}

void Desk::makeEditor()
{
    static constexpr KORVA_COLORTYPE types[] = {KORVA_COLOR_16BIT, KORVA_COLOR_1BIT, KORVA_COLOR_4BIT,
                                                KORVA_COLOR_8BIT};
    m_editor = new KORVA_EditCanvas(types[m_bytes.below(std::size(types))], &m_window);
    m_person.emplace(*m_editor, m_bytes);
    m_mayBeEmpty = false;
    m_isStepOpen = false;
    m_tools = 0;
    m_editor->show();
    const auto listen = [this](auto... signal) {
        (QObject::connect(m_editor.data(), signal, m_editor.data(), [this] { react(); }), ...);
    };
    using Editor = KORVA_EditCanvas;
    listen(&Editor::modified, &Editor::canUndo, &Editor::canRedo, &Editor::selection, &Editor::sizeChanged,
           &Editor::pixmapChanged, &Editor::canvasChanged, &Editor::canDelete, &Editor::signalTextTool,
           &Editor::TextToolClicked, &Editor::strokeTakenBack, &Editor::toolChanged, &Editor::optionChanged,
           &Editor::zoomChanged, &Editor::colorChanged, &Editor::chosen);
}

void Desk::deleteEditor()
{
    m_person.reset();
    delete m_editor;
}

void Desk::react()
{
    if (m_reactions == 0 || m_depth >= deepest || !m_person)
        return;
    const Happening& row = rowOf(m_bytes.next());
    if (!row.isHosts)
        return;
    --m_reactions;
    ++m_depth;
    swiftly(row.name, [&] { row.what(*this); });
    --m_depth;
}

/// A person, or the host, may do this while a question or a dialog is open.
void Desk::beAsked()
{
    enum : quint8 { Cancel = 1, Reset, Delete, Name };
    switch (m_bytes.below(16)) {
    case Cancel:
        m_editor->cancelDialogs();
        break;
    case Reset:
        m_editor->reset();
        break;
    case Delete:
        if (m_depth == 0 &&
            !m_isPersonActing) // in the middle of a signal or an event it may be deleted later only
            deleteEditor();
        break;
    case Name:
        m_services.fileName = file();
        break;
    default:
        break;
    }
}

void Desk::happen()
{
    if (!m_editor) {
        m_person.reset();
        makeEditor();
    }
    const Happening& row = rowOf(m_bytes.next());
    swiftly(row.name, [&] {
        m_isPersonActing = !row.isHosts;
        row.what(*this);
        QCoreApplication::processEvents();
        m_isPersonActing = false;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    ++m_happened;
}

void Desk::check() const
{
    if (!m_editor)
        return;
    const QSize size = canvas().pictureSize();
    KORVA_ASSERT(m_mayBeEmpty || !size.isEmpty());
    KORVA_ASSERT(size.width() <= 2 * largestSide && size.height() <= 2 * largestSide);
    const QSize shown = KORVA_Zoom(canvas().zoom()).zoomed(size);
    KORVA_ASSERT(canvas().zoomedPixmap()->size() == (shown.isEmpty() ? QSize(0, 0) : shown));
    KORVA_ASSERT(canvas().size() == canvas().zoomedPixmap()->size());
    KORVA_ASSERT(canvas().isActive() && canvas().getCurrentTool() == m_editor->manager()->currentTool());
    KORVA_ASSERT(m_editor->tool() >= 0 && m_editor->color().isValid());
    if (m_happened % opacityEvery == 0 && !size.isEmpty())
        KORVA_ASSERT(isOpaque(m_editor->snapshot()));
}

void Desk::checkHistory()
{
    if (!m_editor)
        return;
    m_reactions = 0;
    if (m_isStepOpen)
        canvas().endStep();
    m_editor->manager()->setCurrentTool(KORVA_TOOL_HAND); // ends a text, which has steps of its own
    (void)m_editor->pixmap();                             // merges
    if (!m_editor)
        return;
    QCoreApplication::processEvents();
    const int steps = m_editor->undoSteps();
    const bool isExchange = steps == 1;
    for (int i = 0; !isExchange && i < steps; ++i)
        m_editor->redo();
    const QImage last = m_editor->snapshot();
    KORVA_ASSERT(m_mayBeEmpty || isOpaque(last));
    for (int i = 0; i < steps; ++i)
        m_editor->undo();
    for (int i = 0; i < steps; ++i)
        m_editor->redo();
    KORVA_ASSERT(m_editor->snapshot() == last);
    check();
}

KORVA_Canvas& Desk::canvas() const
{
    return *m_editor->canvas();
}

/// As a host paints: now and then what is not opaque.
void Desk::paint()
{
    const QColor ink = color();
    const QRect where(place(), QSize(m_bytes.next(), m_bytes.next()));
    const auto mode =
        m_bytes.chance() ? QPainter::CompositionMode_Source : QPainter::CompositionMode_SourceOver;
    canvas().saveOldPix();
    QPixmap* pixmap = m_editor->pixmap();
    if (!pixmap->isNull()) {
        QPainter painter(pixmap);
        painter.setCompositionMode(mode);
        painter.fillRect(where, ink);
    }
    canvas().markModified();
    if (m_editor)
        canvas().updateZoomed();
}

void Desk::addTool()
{
    constexpr int mostTools = 3;
    if (++m_tools > mostTools)
        return;
    std::unique_ptr<KORVA_Tool> tool;
    if (m_bytes.chance())
        tool = std::make_unique<FillTool>();
    else
        tool = std::make_unique<PolygonTool>();
    QList<KORVA_ToolOption> options;
    for (int i = m_bytes.below(3); i > 0; --i)
        options.append({QIcon(), "option", m_bytes.below(20)});
    (void)m_editor->addTool(std::move(tool), QIcon(), "own", options);
}

// --- What is read from the input

QSize Desk::size()
{
    static constexpr int odd[] = {352, 640, 641, 1000, largestSide, 0};
    const auto side = [this] {
        constexpr int plain = 0x100 - int(std::size(odd));
        const int byte = m_bytes.next();
        return byte < plain ? byte + 1 : odd[byte - plain];
    };
    const int width = side();
    const QSize size(width, side());
    m_mayBeEmpty = m_mayBeEmpty || size.isEmpty();
    return size;
}

QPixmap Desk::picture()
{
    static constexpr QImage::Format formats[] = {QImage::Format_RGB32, QImage::Format_ARGB32,
                                                 QImage::Format_Mono, QImage::Format_Indexed8};
    constexpr int ratios = 16; // every sixteenth has a device pixel ratio of 2
    const bool wasEmpty = m_mayBeEmpty;
    QSize extent = size().boundedTo(QSize(700, 500));
    m_mayBeEmpty = wasEmpty;
    if (extent.isEmpty())
        extent = QSize(1, 1);
    QImage image(extent, formats[m_bytes.below(std::size(formats))]);
    if (image.depth() <= 8)
        image.setColorTable({qRgb(0, 0, 0), qRgba(255, 255, 255, 128)});
    if (image.depth() > 8)
        image.fill(color());
    else
        image.fill(m_bytes.chance());
    image.setDevicePixelRatio(m_bytes.below(ratios) == ratios - 1 ? 2 : 1);
    return QPixmap::fromImage(image);
}

QPoint Desk::place()
{
    constexpr int half = 0x80;
    const auto coordinate = [this] {
        const int byte = m_bytes.next();
        if (byte == 0xff)
            return m_bytes.number() - 0x8000;
        return byte - half;
    };
    const int x = coordinate();
    return {x, coordinate()};
}

QColor Desk::color()
{
    const int red = m_bytes.next();
    const int green = m_bytes.next();
    const int blue = m_bytes.next();
    return {red, green, blue, m_bytes.below(4) == 3 ? m_bytes.next() : 0xff};
}

QString Desk::file()
{
    static constexpr const char* names[] = {"photo.jpg",   "icon.png",    "damaged.gif",
                                            "missing.png", "drawing.bmp", "own/drawing.png"};
    const int index = m_bytes.below(std::size(names) + 1);
    return index < int(std::size(names)) ? folder() + '/' + names[index] : QString("");
}

KORVA_Features Desk::features()
{
    KORVA_Features features;
    const int bits = m_bytes.next() | m_bytes.next() << 8;
    bool* const switches[] = {&features.controls, &features.colors,  &features.dialogs,  &features.opening,
                              &features.saving,   &features.pasting, &features.resizing, &features.editing};
    for (int i = 0; i < int(std::size(switches)); ++i)
        *switches[i] = !(bits >> i & 1);
    for (int i = m_bytes.below(4); i > 0; --i)
        features.withoutTools.append(m_bytes.below(12));
    if (bits & 0x100)
        features.withoutOptions[m_bytes.below(8)].append(m_bytes.below(4));
    if (bits & 0x200)
        features.ownOptions[m_bytes.below(8)] = {{QIcon(), "own", m_bytes.between(1, 60)},
                                                 {QIcon(), "own too", m_bytes.between(1, 60)}};
    if (bits & 0x400) {
        features.zooms = {KORVA_Features::fitToPage};
        for (int i = m_bytes.below(4); i > 0; --i)
            features.zooms.append(qBound(1, m_bytes.number(), 3200));
    }
    if (bits & 0x800)
        features.formats = {"PNG", "GIF"};
    return features;
}

KORVA_Manners Desk::manners()
{
    static const QStringList words = KORVA_Manners::modern().words();
    const int kind = m_bytes.below(3);
    if (kind < 2)
        return kind == 0 ? KORVA_Manners::modern() : KORVA_Manners();
    QStringList chosen;
    int bits = 0;
    for (int i = 0; i < words.size(); ++i) {
        bits = i % 8 == 0 ? m_bytes.next() : bits >> 1;
        if (bits & 1)
            chosen.append(words[i]);
    }
    return KORVA_Manners::ofWords(chosen).value();
}

} // namespace fuzz
