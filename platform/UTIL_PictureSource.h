#pragma once

#include "UTIL_PictureProbe.h"

#include <QIODevice>

#include <functional>
#include <limits>

/// A read-only device that shows some parts of another device, one after the other, as if nothing else were
/// in it.
class UTIL_PictureSource : public QIODevice
{
    Q_OBJECT

public:
    /// `device` is open and outlives the source. Once `isCancelled` returns true nothing more can be read.
    UTIL_PictureSource(QIODevice& device, const QList<UTIL_PictureProbe::Range>& parts,
                       const std::function<bool()>& isCancelled = {});

    [[nodiscard]] qint64 size() const override { return m_size; }
    bool seek(qint64 position) override;
    /// From here, at most so many bytes can be read.
    void allowMore(qint64 bytes) { m_left = bytes; }
    /// For decoders that work long on what they have read.
    [[nodiscard]] bool isCancelled() const { return m_isCancelled && m_isCancelled(); }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    qint64 readParts(char* data, qint64 most);

    QIODevice& m_device;
    QList<UTIL_PictureProbe::Range> m_parts;
    std::function<bool()> m_isCancelled;
    qint64 m_size = 0;
    qsizetype m_part = 0; ///< the part that is being read
    qint64 m_offset = 0;  ///< the position in that part
    qint64 m_left = std::numeric_limits<qint64>::max();
};
