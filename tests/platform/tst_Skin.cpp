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
    void everyInkIsReadable_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QColor>("fill");
        for (const auto ground : {Color::Ground, Color::Surface}) {
            const char* where = ground == Color::Ground ? "ground" : "surface";
            QTest::addRow("ink on %s", where) << UTIL_Skin::color(Color::Ink) << UTIL_Skin::color(ground);
            QTest::addRow("quiet ink on %s", where)
                << UTIL_Skin::color(Color::QuietInk) << UTIL_Skin::color(ground);
            QTest::addRow("accent on %s", where)
                << UTIL_Skin::color(Color::Accent) << UTIL_Skin::color(ground);
        }
        for (const auto& [controlName, control] : controls) {
            for (const auto& [stateName, state] : states) {
                const UTIL_Skin::Look look = UTIL_Skin::look(control, state);
                const QColor fill = look.fill.alpha() ? look.fill : UTIL_Skin::color(Color::Ground);
                QTest::addRow("%s, %s", controlName, stateName) << look.ink << fill;
            }
        }
    }

    void everyInkIsReadable()
    {
        QFETCH(QColor, ink);
        QFETCH(QColor, fill);
        QVERIFY2(contrast(ink, fill) >= readable, qPrintable(QString::number(contrast(ink, fill))));
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
};

int main(int argc, char** argv)
{
    return support::run<tst_Skin>(argc, argv);
}

#include "tst_Skin.moc"
