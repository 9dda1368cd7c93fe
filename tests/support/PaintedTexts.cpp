#include "PaintedTexts.h"

namespace support {

namespace {

constexpr qreal slack = 1.5; // letters are placed on whole pixels

/// Paints nothing and writes down the texts.
class Listener : public QPaintEngine
{
public:
    Listener() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& change) override
    {
        if (change.state() & QPaintEngine::DirtyTransform)
            m_transform = change.transform();
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        if (item.text().trimmed().isEmpty())
            return;
        const QRectF line(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        QRectF seen = systemClip().isEmpty() ? QRectF(QPointF(), m_size) : systemClip().boundingRect();
        if (painter()->hasClipping())
            seen &= m_transform.mapRect(painter()->clipBoundingRect());
        m_texts.append({item.text(), m_transform.mapRect(line), seen});
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    [[nodiscard]] Type type() const override { return User; }

    QSize m_size;
    QList<PaintedText> m_texts;

private:
    QTransform m_transform;
};

class Sheet : public QPaintDevice
{
public:
    explicit Sheet(QSize size) { m_engine.m_size = size; }
    [[nodiscard]] QPaintEngine* paintEngine() const override { return &m_engine; }
    [[nodiscard]] const QList<PaintedText>& texts() const { return m_engine.m_texts; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        constexpr int dotsPerInch = 96;
        switch (metric) {
        case PdmWidth:
            return m_engine.m_size.width();
        case PdmHeight:
            return m_engine.m_size.height();
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDevicePixelRatio:
            return 1;
        case PdmNumColors:
            return std::numeric_limits<int>::max();
        case PdmDepth:
            return 32;
        default:
            return dotsPerInch;
        }
    }

private:
    mutable Listener m_engine;
};

bool isCutOff(const QRectF& place, const QRectF& seen)
{
    return place.left() < seen.left() - slack || place.right() > seen.right() + slack;
}

/// What is marked in a line for typing is painted once more; what cannot be chosen has a shadow.
bool isTheSame(const PaintedText& text, const PaintedText& other)
{
    return text.text == other.text && (text.place.topLeft() - other.place.topLeft()).manhattanLength() <= 2;
}

bool isScrolledAway(const PaintedText& text)
{
    return text.place.bottom() > text.seen.bottom() + slack || text.place.top() < text.seen.top() - slack;
}

} // namespace

QList<PaintedText> paintedTexts(QWidget& window)
{
    Sheet sheet(window.size());
    window.render(&sheet);
    return sheet.texts();
}

QStringList unreadable(const QList<PaintedText>& texts)
{
    QStringList found;
    QList<PaintedText> before;
    for (const PaintedText& text : texts) {
        if (isScrolledAway(text))
            continue;
        QRectF seen = text.seen;
        for (const PaintedText& other : texts) {
            if (isTheSame(text, other))
                seen |= other.seen;
        }
        if (text.text.contains(QChar(0x2026)))
            found << QString("'%1' is shortened").arg(text.text);
        if (isCutOff(text.place, seen))
            found << QString("'%1' is cut off").arg(text.text);
        for (const PaintedText& other : before) {
            const QRectF common = text.place & other.place;
            if (!isTheSame(text, other) && common.width() > slack &&
                common.height() > text.place.height() / 2)
                found << QString("'%1' lies over '%2'").arg(text.text, other.text);
        }
        before.append(text);
    }
    return found;
}

} // namespace support
