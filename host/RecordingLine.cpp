#include "RecordingLine.h"

#include "Recording.h"

namespace pad {

namespace {

constexpr struct
{
    char letter;
    char meaning;
} escapes[] = {{'"', '"'}, {'\\', '\\'}, {'n', '\n'}, {'t', '\t'}};

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\r');
}

class Splitter
{
public:
    explicit Splitter(const QString& line) : m_line(line) {}

    Expected<QStringList> split()
    {
        while (skipToWord()) {
            if (peek() == QLatin1Char('"')) {
                if (const auto failure = takeQuoted())
                    return *failure;
            } else {
                takePlain();
            }
            if (!atEnd() && !isBlank(peek()) && peek() != QLatin1Char('#'))
                return Failure{
                    Recording::tr("a blank is missing at '%1'", "recording").arg(m_line.mid(m_at))};
        }
        return m_words;
    }

private:
    [[nodiscard]] bool atEnd() const { return m_at >= m_line.size(); }
    [[nodiscard]] QChar peek() const { return m_line.at(m_at); }

    bool skipToWord()
    {
        while (!atEnd() && isBlank(peek()))
            ++m_at;
        return !atEnd() && !beginsComment();
    }

    /// A colour is the only word that begins with the sign of a comment.
    [[nodiscard]] bool beginsComment() const
    {
        const bool colorExpected = m_words == QStringList{QStringLiteral("color")} ||
                                   m_words == QStringList{QStringLiteral("outline")};
        return peek() == QLatin1Char('#') && !colorExpected;
    }

    void takePlain()
    {
        const qsizetype begin = m_at++;
        while (!atEnd() && !isBlank(peek()) && peek() != QLatin1Char('#') && peek() != QLatin1Char('"'))
            ++m_at;
        m_words.append(m_line.mid(begin, m_at - begin));
    }

    std::optional<Failure> takeQuoted()
    {
        QString word;
        for (++m_at; !atEnd(); ++m_at) {
            if (peek() == QLatin1Char('"')) {
                ++m_at;
                m_words.append(word);
                return {};
            }
            if (peek() != QLatin1Char('\\')) {
                word += peek();
            } else if (++m_at; atEnd()) {
                break;
            } else if (!takeEscape(word)) {
                return Failure{Recording::tr("unknown escape '\\%1'", "recording").arg(peek())};
            }
        }
        return Failure{Recording::tr("the closing quote is missing", "recording")};
    }

    bool takeEscape(QString& word) const
    {
        for (const auto& escape : escapes) {
            if (peek() == QLatin1Char(escape.letter)) {
                word += QLatin1Char(escape.meaning);
                return true;
            }
        }
        return false;
    }

    const QString& m_line;
    qsizetype m_at = 0;
    QStringList m_words;
};

} // namespace

Expected<QStringList> splitLine(const QString& line)
{
    return Splitter(line).split();
}

QString quoted(const QString& word)
{
    QString inside;
    for (const QChar c : word) {
        QString shown = c;
        for (const auto& escape : escapes) {
            if (c == QLatin1Char(escape.meaning))
                shown = QLatin1String("\\") + QLatin1Char(escape.letter);
        }
        inside += shown;
    }
    return QLatin1Char('"') + inside + QLatin1Char('"');
}

} // namespace pad
