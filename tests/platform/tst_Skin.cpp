#include "RES_ICON_Reader.h"
#include "UTIL_Skin.h"
#include "support/TestCase.h"

namespace {

using Color = UTIL_Skin::Color;
using Control = UTIL_Skin::Control;
using State = UTIL_Skin::State;

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

constexpr double readable = 4.5;
constexpr double readableWhenDisabled = 3;

QPalette desktop(const char* window, const char* base, const char* ink, const char* highlight)
{
    const QColor ground(window);
    QPalette palette(ground, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(ink));
    palette.setColor(QPalette::Base, QColor(base));
    palette.setColor(QPalette::Highlight, QColor(highlight));
    return palette;
}

void addDesktops()
{
    QTest::addColumn<QPalette>("desktop");
    QTest::addColumn<bool>("isOurs"); // light: the skin has its own colors
    QTest::newRow("light") << desktop("#efefef", "#ffffff", "#000000", "#308cc6") << true;
    QTest::newRow("light and warm") << desktop("#f6f5f4", "#ffffff", "#2e3436", "#3584e4") << true;
    QTest::newRow("white") << desktop("#ffffff", "#ffffff", "#333333", "#3584e4") << true;
    QTest::newRow("dark") << desktop("#323232", "#242424", "#ffffff", "#2a82da") << false;
    QTest::newRow("dark and cold") << desktop("#2a2e32", "#1b1e20", "#fcfcfc", "#3daee9") << false;
    QTest::newRow("dark with a pale ink") << desktop("#353535", "#2d2d2d", "#808080", "#15539e") << false;
    QTest::newRow("navy") << desktop("#101040", "#181850", "#c0c0ff", "#202080") << false;
    QTest::newRow("middling") << desktop("#606060", "#707070", "#ffffff", "#606060") << false;
    QTest::newRow("dark with light fields") << desktop("#303030", "#f0f0f0", "#eeeeee", "#2a82da") << false;
    QTest::newRow("white on black") << desktop("#000000", "#000000", "#ffffff", "#1aebff") << false;
    QTest::newRow("yellow on black") << desktop("#000000", "#000000", "#ffff00", "#008000") << false;
    QTest::newRow("black on white") << desktop("#ffffff", "#ffffff", "#000000", "#37006e") << false;
}

const QList<QPair<const char*, Control>> controls = {
    {"key", Control::Key}, {"primary key", Control::PrimaryKey}, {"row", Control::Row}};
const QList<QPair<const char*, State>> states = {{"resting", State::Resting},
                                                 {"hovered", State::Hovered},
                                                 {"pressed", State::Pressed},
                                                 {"checked", State::Checked},
                                                 {"disabled", State::Disabled}};

} // namespace

class tst_Skin : public support::TestCase
{
    Q_OBJECT

private slots:
    void init() { QApplication::setPalette(m_before); }
    void cleanupTestCase() { QApplication::setPalette(m_before); }

    void everyInkIsReadable_data() { addDesktops(); }

    void everyInkIsReadable()
    {
        QFETCH(QPalette, desktop);
        QFETCH(bool, isOurs);
        QApplication::setPalette(desktop);
        const auto look = [](const QString& what, const QColor& ink, const QColor& fill, double least) {
            QVERIFY2(ink.alpha() == 255 && contrast(ink, fill) >= least,
                     qPrintable(QString("%1: %2 on %3 is %4")
                                    .arg(what, ink.name(), fill.name())
                                    .arg(contrast(ink, fill))));
        };
        const QList<QColor> grounds = {UTIL_Skin::color(Color::Ground), UTIL_Skin::color(Color::Surface)};
        for (const QColor& ground : grounds) {
            look("ink", UTIL_Skin::color(Color::Ink), ground, readable);
            look("quiet ink", UTIL_Skin::color(Color::QuietInk), ground, readable);
            look("accent", UTIL_Skin::color(Color::Accent), ground, readable);
        }
        for (const auto& [controlName, control] : controls) {
            for (const auto& [stateName, state] : states) {
                const UTIL_Skin::Look shown = UTIL_Skin::look(control, state);
                const double least = state == State::Disabled && !isOurs ? readableWhenDisabled : readable;
                for (const QColor& fill : shown.fill.alpha() ? QList<QColor>{shown.fill} : grounds)
                    look(QString("%1, %2").arg(controlName, stateName), shown.ink, fill, least);
            }
        }
        const QPalette palette = UTIL_Skin::palette();
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::ToolTipText, QPalette::ToolTipBase},
            {QPalette::PlaceholderText, QPalette::Base}};
        for (const auto& [ink, ground] : pairs)
            look(QVariant::fromValue(ink).toString(), palette.color(ink), palette.color(ground), readable);
    }

    void lightDesktopsLeaveTheSkinAsItIs_data() { addDesktops(); }

    void lightDesktopsLeaveTheSkinAsItIs()
    {
        QFETCH(QPalette, desktop);
        QFETCH(bool, isOurs);
        QApplication::setPalette(desktop);
        const QList<QRgb> own = {0xFFF4F5F7, 0xFFFFFFFF, 0xFF2B3440, 0xFF5E6875,
                                 0xFFB9C1CC, 0xFF6B7684, 0xFF1B66DB, 0x592B3440};
        QList<QRgb> colors;
        for (int color = 0; color < own.size(); ++color)
            colors << UTIL_Skin::color(Color(color)).rgba();
        QCOMPARE(colors == own, isOurs);
        const UTIL_Skin::Look checked = UTIL_Skin::look(Control::Key, State::Checked);
        QCOMPARE(checked.fill == QColor(0xDC, 0xE8, 0xFD) && checked.border == QColor(0x1B, 0x66, 0xDB) &&
                     checked.ink == QColor(0x17, 0x45, 0x8F),
                 isOurs);
        if (!isOurs) { // what the desktop has and can be read is taken
            QCOMPARE(UTIL_Skin::color(Color::Ground), desktop.color(QPalette::Window));
            if (contrast(desktop.color(QPalette::WindowText), desktop.color(QPalette::Window)) > 12)
                QCOMPARE(UTIL_Skin::color(Color::Ink), desktop.color(QPalette::WindowText));
        }
    }

    void aProgramMaySetItsPalette_data() { addDesktops(); }

    void aProgramMaySetItsPalette()
    {
        QFETCH(QPalette, desktop);
        QApplication::setPalette(desktop);
        const auto all = [] {
            QList<QRgb> colors;
            for (int color = 0; color < 8; ++color)
                colors << UTIL_Skin::color(Color(color)).rgba();
            for (const auto& control : controls)
                for (const auto& state : states) {
                    const UTIL_Skin::Look look = UTIL_Skin::look(control.second, state.second);
                    colors << look.fill.rgba() << look.border.rgba() << look.ink.rgba();
                }
            return colors;
        };
        const QList<QRgb> before = all();
        QApplication::setPalette(UTIL_Skin::palette());
        QCOMPARE(all(), before);
    }

    void drawingsTakeTheColorsInForce()
    {
        constexpr QRgb light[] = {0xFFF4F5F7, 0xFF2B3440, 0xFF1B66DB};
        const auto drawn = [&] {
            QImage image(4, 1, QImage::Format_ARGB32);
            for (int i = 0; i < 3; ++i)
                image.setPixel(i, 0, light[i]);
            image.setPixel(3, 0, 0);
            return UTIL_Skin::recolored(QPixmap::fromImage(image))
                .toImage()
                .convertToFormat(QImage::Format_ARGB32);
        };
        for (int i = 0; i < 3; ++i)
            QCOMPARE(drawn().pixel(i, 0), light[i]);
        QApplication::setPalette(desktop("#2a2e32", "#1b1e20", "#fcfcfc", "#3daee9"));
        const QImage dark = drawn();
        QCOMPARE(dark.pixelColor(0, 0), UTIL_Skin::color(Color::Ground));
        QCOMPARE(dark.pixelColor(1, 0), UTIL_Skin::color(Color::Ink));
        QCOMPARE(dark.pixelColor(2, 0), UTIL_Skin::color(Color::Accent));
        QCOMPARE(dark.pixelColor(3, 0).alpha(), 0);
    }

    void builtInDrawingsAreSeen_data() { addDesktops(); }

    void builtInDrawingsAreSeen()
    {
        QFETCH(QPalette, desktop);
        QApplication::setPalette(desktop);
        for (const char* name :
             {"DaApV_Pencil_Tool.gif", "DaApV_Sel_Tool_Opt_Hand.gif", "DaApV_Line_Tool_Opt_S.gif"}) {
            const QImage image = RES_ICON_Reader::getIcon(name).toImage();
            double best = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (image.pixelColor(x, y).alpha() == 255)
                        best = std::max(best,
                                        contrast(image.pixelColor(x, y), UTIL_Skin::color(Color::Ground)));
            QVERIFY2(best >= readable, name);
        }
    }

    void aKeyLooksDifferentInEveryState()
    {
        QSet<QRgb> fills;
        for (const auto& [name, state] : states) {
            const UTIL_Skin::Look look = UTIL_Skin::look(Control::Key, state);
            fills << look.fill.rgba();
        }
        QCOMPARE(fills.size(), states.size());
    }

    void aBoxStaysInsideItsArea()
    {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            UTIL_Skin::paintBox(painter, QRect(10, 10, 40, 20), UTIL_Skin::look(Control::PrimaryKey, {}));
            UTIL_Skin::paintFocus(painter, QRect(10, 10, 40, 20));
        }
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (!QRect(10, 10, 40, 20).contains(x, y))
                    QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
        QCOMPARE(image.pixelColor(30, 20), UTIL_Skin::color(Color::Accent));
    }

    void aBoxWithoutABorderFillsItsArea()
    {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            UTIL_Skin::paintBox(painter, QRect(10, 10, 40, 20), {Qt::red, Qt::transparent, Qt::black});
        }
        QCOMPARE(image.pixelColor(30, 10), QColor(Qt::red));
        QCOMPARE(image.pixelColor(30, 29), QColor(Qt::red));
        QCOMPARE(image.pixelColor(10, 20), QColor(Qt::red));
        QCOMPARE(image.pixelColor(49, 20), QColor(Qt::red));
    }

    void theMarkedRadioHasADot()
    {
        const auto paint = [](bool marked) {
            QImage image(20, 20, QImage::Format_RGB32);
            image.fill(UTIL_Skin::color(Color::Ground));
            QPainter painter(&image);
            UTIL_Skin::paintRadio(painter, image.rect(), marked, true);
            return image.pixelColor(image.rect().center());
        };
        QCOMPARE(paint(true), UTIL_Skin::color(Color::Accent));
        QCOMPARE(paint(false), UTIL_Skin::color(Color::Surface));
    }

    void aPictureIsFoundByItsName()
    {
        QCOMPARE(UTIL_Skin::pictureFile("Dialog_Error"), QString("Dialog_Error.gif"));
        QCOMPARE(UTIL_Skin::picture("Dialog_Error").deviceIndependentSize(), QSizeF(40, 40));
        QVERIFY(UTIL_Skin::picture("Dialog_Unheard_Of").isNull());
    }

private:
    const QPalette m_before = QApplication::palette();
};

int main(int argc, char** argv)
{
    return support::run<tst_Skin>(argc, argv);
}

#include "tst_Skin.moc"
