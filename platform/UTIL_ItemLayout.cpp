#include "UTIL_ItemLayout.h"

#include <QRegularExpression>

UTIL_ItemLayout::UTIL_ItemLayout(const QString& layout)
{
    static const QRegularExpression field(QStringLiteral("\\G%([TR])(\\d{1,4})"));
    int left = 0;
    for (auto match = field.globalMatch(layout); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const int width = found.capturedView(2).toInt();
        const bool isText = found.capturedView(1) == QLatin1String("T");
        m_fields.push_back({isText ? Kind::Text : Kind::Radio, left, width});
        left += width;
    }
}
