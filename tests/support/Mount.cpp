#include "Mount.h"

#include "PictureFiles.h"

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace support {

namespace {

bool canMount = false;

bool enterOwnMountSpace()
{
    const uid_t user = getuid();
    const gid_t group = getgid();
    if (user == 0)
        return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", QByteArray("0 ") + QByteArray::number(user) + " 1");
    write("/proc/self/gid_map", QByteArray("0 ") + QByteArray::number(group) + " 1");
    return true;
}

} // namespace

void Mount::allow()
{
    canMount = enterOwnMountSpace();
}

Mount::Mount(const QString& folder, const char* options) : m_folder(QFile::encodeName(folder))
{
    QDir().mkpath(folder);
    m_isThere = canMount && mount("none", m_folder.constData(), "tmpfs", 0, options) == 0;
}

Mount::Mount(const QString& folder, const QString& shown) : m_folder(QFile::encodeName(folder))
{
    QDir().mkpath(folder);
    QDir().mkpath(shown);
    m_isThere = canMount && mount(QFile::encodeName(shown).constData(), m_folder.constData(), nullptr,
                                  MS_BIND, nullptr) == 0;
}

Mount::~Mount()
{
    if (m_isThere)
        umount2(m_folder.constData(), MNT_DETACH);
}

bool Mount::setReadOnly(bool isReadOnly) const
{
    const unsigned long flags = MS_REMOUNT | (isReadOnly ? MS_RDONLY : 0);
    return mount("none", m_folder.constData(), "tmpfs", flags, nullptr) == 0;
}

} // namespace support
