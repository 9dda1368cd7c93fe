#include "UTIL_PictureSource.h"

UTIL_PictureSource::UTIL_PictureSource(QIODevice& device, const QList<UTIL_PictureProbe::Range>& parts,
                                       const std::function<bool()>& isCancelled)
    : m_device(device), m_parts(parts), m_isCancelled(isCancelled)
{
    for (const UTIL_PictureProbe::Range& part : m_parts)
        m_size += part.length;
    open(ReadOnly);
}

bool UTIL_PictureSource::seek(qint64 position)
{
    if (position < 0 || position > m_size || !QIODevice::seek(position))
        return false;
    m_offset = position;
    for (m_part = 0; m_part < m_parts.size() && m_offset >= m_parts[m_part].length; ++m_part)
        m_offset -= m_parts[m_part].length;
    return true;
}

qint64 UTIL_PictureSource::readData(char* data, qint64 most)
{
    if (isCancelled() || m_left <= 0)
        return -1;
    const qint64 done = readParts(data, qMin(most, m_left));
    m_left -= done;
    return done;
}

qint64 UTIL_PictureSource::readParts(char* data, qint64 most)
{
    qint64 done = 0;
    while (done < most && m_part < m_parts.size()) {
        const UTIL_PictureProbe::Range& part = m_parts[m_part];
        const qint64 wanted = qMin(most - done, part.length - m_offset);
        if (!m_device.seek(part.start + m_offset))
            break;
        const qint64 read = m_device.read(data + done, wanted);
        if (read < wanted)
            return done + qMax<qint64>(read, 0);
        done += read;
        m_offset += read;
        if (m_offset == part.length) {
            ++m_part;
            m_offset = 0;
        }
    }
    return done;
}
