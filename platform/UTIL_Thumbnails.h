#pragma once

#include <QCache>
#include <QFutureWatcher>
#include <QObject>
#include <QPixmap>
#include <QStringList>

/// Makes thumbnails of picture files in a thread of its own, the last wanted first. Requests that are old
/// and no longer visible are forgotten. Deleting the object waits for nothing: a thumbnail that is being
/// made is given up.
class UTIL_Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit UTIL_Thumbnails(QObject* parent = nullptr);
    ~UTIL_Thumbnails() override;

    /// The file's thumbnail. Null while it is being made (ready() tells when it is finished), and for a
    /// file that is no picture.
    [[nodiscard]] QPixmap wanted(const QString& fileName);
    /// Whether what wanted() returns is final.
    [[nodiscard]] bool isMade(const QString& fileName) const { return m_made.contains(fileName); }
    /// Forgets all requests that have not been started.
    void clear() { m_wanted.clear(); }

signals:
    void ready(const QString& fileName);

private:
    void makeNext();
    void take();

    QStringList m_wanted; ///< the last is made next
    QString m_making;     ///< empty when the thread is idle
    QFutureWatcher<QImage> m_maker;
    QCache<QString, QPixmap> m_made;
};
