#pragma once

#include <QCache>
#include <QFutureWatcher>
#include <QObject>
#include <QPixmap>
#include <QStringList>

/// Small pictures of picture files, made in a thread of their own, the last wanted first. What was wanted
/// long ago and is no longer to be seen is forgotten. Deleting the object waits for nothing: a picture that
/// is being made is given up.
class UTIL_Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit UTIL_Thumbnails(QObject* parent = nullptr);
    ~UTIL_Thumbnails() override;

    /// The file's thumbnail; null while it is being made (ready() tells when it is) and for a file that is
    /// no picture.
    [[nodiscard]] QPixmap wanted(const QString& fileName);
    /// Whether wanted() gives all that it ever will.
    [[nodiscard]] bool isMade(const QString& fileName) const { return m_made.contains(fileName); }
    /// Forgets what is wanted and not begun.
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
