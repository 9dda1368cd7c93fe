#include "TextFixtures.h"

using fixtures::WritingDesk;
using support::sameImage;

/// Random sequences of typing, held against the text that is left drawn at once.
class tst_TextProperties : public support::TestCase
{
    Q_OBJECT

private slots:
    void randomEditing_data();
    void randomEditing();

private:
    static constexpr int sequences = 200; // at each zoom;
};

namespace {

/// What a person has typed, as a list of characters.
class Writer
{
public:
    explicit Writer(WritingDesk& desk, QRandomGenerator& random) : m_desk(desk), m_random(random) {}

    void doSomething()
    {
        const int what = m_random.bounded(20);
        if (what < 11)
            type(letters[size_t(m_random.bounded(int(letters.size())))]);
        else if (what < 13)
            type("\n");
        else if (what < 14)
            type("\t");
        else if (what < 17)
            deleteLast();
        else if (what < 18)
            m_desk.resize(QList{1, 3, 5}[m_random.bounded(3)]);
        else if (what < 19)
            m_desk.blink();
        else
            compose();
    }

    [[nodiscard]] QString text() const { return m_text.join(""); }
    [[nodiscard]] QString log() const { return m_log; }

private:
    void type(const QString& character)
    {
        m_text << character;
        m_log += character;
        if (character.size() == 1)
            m_desk.type(character);
        else
            m_desk.stylus.key(Qt::Key_unknown, character);
    }
    void deleteLast()
    {
        m_desk.type("\b");
        m_log += "<";
        if (!m_text.isEmpty())
            m_text.removeLast();
    }
    void compose()
    {
        m_desk.compose("kan");
        if (m_random.bounded(2)) {
            m_desk.compose("", letters.back());
            m_text << letters.back();
        } else {
            m_desk.compose("");
        }
    }

    const std::vector<QString> letters{"a",
                                       "W",
                                       "f",
                                       "i",
                                       "j",
                                       " ",
                                       "g",
                                       ".",
                                       u"\u00e9"_qs,
                                       u"\u0416"_qs,
                                       u"\U0001f600"_qs,
                                       u"e\u0301"_qs,
                                       u"\u6f22"_qs};
    WritingDesk& m_desk;
    QRandomGenerator& m_random;
    QStringList m_text;
    QString m_log;
};

} // namespace

void tst_TextProperties::randomEditing_data()
{
    QTest::addColumn<int>("zoom");
    for (const int zoom : {50, 92, 100, 150, 200})
        QTest::addRow("%d %%", zoom) << zoom;
}

void tst_TextProperties::randomEditing()
{
    QFETCH(const int, zoom);
    constexpr QSize screenSize(120, 90);
    const QImage image = support::mosaic(screenSize * 100 / zoom);
    QRandomGenerator random{quint32(zoom)};
    WritingDesk desk(image, zoom);

    for (int i = 0; i < sequences; ++i) {
        desk.manager.setPenWidth(QList{1, 3, 5}[random.bounded(3)]);
        desk.tap({random.bounded(-10, screenSize.width()), random.bounded(-10, screenSize.height() + 10)});
        Writer writer(desk, random);
        for (int edits = random.bounded(25); edits > 0; --edits)
            writer.doSomething();
        const auto fails = [&](const char* what) {
            QTest::qFail(qPrintable(QString("sequence %1, \"%2\": %3").arg(i).arg(writer.log(), what)),
                         __FILE__, __LINE__);
        };

        if (!sameImage(desk.canvas.merged(), desk.base))
            return fails("picture before the commit");
        if (!sameImage(desk.screen(), desk.previewed(writer.text())))
            return fails("preview");
        const QImage written = desk.written(writer.text());
        desk.stylus.press({10, 10});
        if (!sameImage(desk.canvas.merged(), written))
            return fails("picture");
        if (!sameImage(desk.canvas.shown(), support::scaled(written, zoom)))
            return fails("screen");
        desk.canvas.undo();
        if (!sameImage(desk.canvas.merged(), desk.base) || !sameImage(desk.canvas.shown(), desk.start))
            return fails("undo");
        desk.stylus.release({90, 90}); // no tap: no text
    }
}

int main(int argc, char** argv)
{
    return support::run<tst_TextProperties>(argc, argv);
}

#include "tst_TextProperties.moc"
