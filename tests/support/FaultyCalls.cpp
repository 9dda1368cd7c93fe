#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

// Preloaded before the system's library, this stands between a program and its calls on the files of one
// folder. It writes each of them down and lets one of them fail. support::Faults says which, through the
// environment, so that it holds for programs started by the program, too.

struct stat;
struct stat64;
struct statx;

namespace {

struct Fault
{
    enum Kind { None, Short, Vanish, Stall, Error };

    Kind kind = None;
    int error = 0; ///< of a stall its milliseconds
};

/// The function that would have been called.
template <typename Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::string behindHandle(int handle)
{
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(handle);
    const ssize_t length = readlink(link.c_str(), path, sizeof(path));
    return length > 0 ? std::string(path, size_t(length)) : std::string();
}

std::string whole(int folder, const char* path)
{
    const std::string handles = "/proc/self/fd/";
    if (path && handles.compare(0, handles.size(), path, strnlen(path, handles.size())) == 0)
        return behindHandle(atoi(path + handles.size()));
    if (!path || *path == '/')
        return path ? path : "";
    if (*path == '\0')
        return behindHandle(folder);
    char here[4096];
    const std::string base = folder != AT_FDCWD           ? behindHandle(folder)
                             : getcwd(here, sizeof(here)) ? std::string(here)
                                                          : std::string();
    return base + '/' + path;
}

/// Empty if it is not in the folder.
std::string inFolder(const std::string& path)
{
    const char* folder = getenv("KORVA_FAULT_FOLDER");
    if (!folder || path.compare(0, strlen(folder), folder) != 0)
        return {};
    const std::string rest = path.substr(strlen(folder));
    return rest.empty() ? "." : rest[0] == '/' ? rest.substr(1) : std::string();
}

void note(const std::string& line)
{
    const char* log = getenv("KORVA_FAULT_LOG");
    const int handle = log ? open(log, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600) : -1;
    if (handle < 0)
        return;
    [[maybe_unused]] const ssize_t written = write(handle, line.data(), line.size());
    close(handle);
}

/// "SERIAL PROGRAM CALL ORDINAL ERROR": the ordinal is that of the call among those of its name in the
/// program since the serial number changed; 0 as the error means that half is written, -1 that the folder
/// vanishes, and less that the call takes as many milliseconds.
Fault wanted(const char* call)
{
    static std::mutex mutex;
    static std::string serial;
    static std::map<std::string, int> counts;
    const std::lock_guard lock(mutex);
    const char* text = getenv("KORVA_FAULT");
    char newSerial[32] = "";
    char program[64] = "";
    char name[32] = "";
    int ordinal = 0;
    int error = 0;
    const int found =
        text ? sscanf(text, "%31s %63s %31s %d %d", newSerial, program, name, &ordinal, &error) : 0;
    if (serial != newSerial) {
        serial = newSerial;
        counts.clear();
    }
    const int count = ++counts[call];
    if (found != 5 || count != ordinal || strcmp(name, call) != 0 ||
        strcmp(program, program_invocation_short_name) != 0)
        return {};
    constexpr int vanishes = -1;
    if (error < vanishes)
        return {Fault::Stall, -error};
    return {error == 0 ? Fault::Short : error == vanishes ? Fault::Vanish : Fault::Error, error};
}

void vanish()
{
    const char* folder = getenv("KORVA_FAULT_FOLDER");
    next<int(const char*, const char*)>("rename")(folder, (std::string(folder) + ".gone").c_str());
}

Fault judged(const char* call, const std::string& path, const std::string& other = {})
{
    const int before = errno;
    const std::string name = inFolder(path);
    const std::string otherName = other.empty() ? std::string() : inFolder(other);
    Fault fault;
    if (!name.empty() || !otherName.empty()) {
        fault = wanted(call);
        const bool isFirst = syscall(SYS_gettid) == getpid();
        note(std::string(program_invocation_short_name) + '\t' + call + '\t' +
             (isFirst ? "first" : "other") + '\t' + name + (other.empty() ? "" : '\t' + otherName) + '\n');
        if (fault.kind == Fault::Vanish)
            vanish();
        else if (fault.kind == Fault::Stall)
            usleep(useconds_t(fault.error) * 1000);
    }
    errno = fault.kind == Fault::Error ? fault.error : before;
    return fault;
}

template <typename Function, typename... Arguments>
auto called(const Fault& fault, const char* function, Arguments... arguments)
{
    using Result = decltype(next<Function>(function)(arguments...));
    return fault.kind == Fault::Error ? Result(-1) : next<Function>(function)(arguments...);
}

using Open = int(const char*, int, ...);
using OpenAt = int(int, const char*, int, ...);
using OfPath = int(const char*);
using OfHandle = int(int);
using OfTwo = int(const char*, const char*);
using Chown = int(int, uid_t, gid_t);
using Chmod = int(const char*, mode_t);
using HandleChmod = int(int, mode_t);
using AtFlags = int(int, const char*, int);
using AtTwo = int(int, const char*, int, const char*);
using AtTwoFlags = int(int, const char*, int, const char*, unsigned);
using LinkAt = int(int, const char*, int, const char*, int);
using Write = ssize_t(int, const void*, size_t);
using PathStat = int(const char*, void*);
using HandleStat = int(int, void*);
using AtStat = int(int, const char*, void*, int);
using StatX = int(int, const char*, int, unsigned, void*);

int opened(const char* function, const char* path, int flags, mode_t mode)
{
    return called<Open>(judged("open", whole(AT_FDCWD, path)), function, path, flags, mode);
}

int openedAt(const char* function, int folder, const char* path, int flags, mode_t mode)
{
    return called<OpenAt>(judged("open", whole(folder, path)), function, folder, path, flags, mode);
}

} // namespace

// The system's functions, under names that no header knows.

int faultyOpen(const char* path, int flags, mode_t mode) asm("open");
int faultyOpen64(const char* path, int flags, mode_t mode) asm("open64");
int faultyOpen2(const char* path, int flags) asm("__open_2");
int faultyOpen642(const char* path, int flags) asm("__open64_2");
int faultyOpenAt(int folder, const char* path, int flags, mode_t mode) asm("openat");
int faultyOpenAt64(int folder, const char* path, int flags, mode_t mode) asm("openat64");
int faultyClose(int handle) asm("close");
ssize_t faultyWrite(int handle, const void* bytes, size_t size) asm("write");
int faultyFsync(int handle) asm("fsync");
int faultyFdatasync(int handle) asm("fdatasync");
int faultyRename(const char* from, const char* to) asm("rename");
int faultyRenameAt(int folder, const char* from, int other, const char* to) asm("renameat");
int faultyRenameAt2(int folder, const char* from, int other, const char* to,
                    unsigned flags) asm("renameat2");
int faultyLink(const char* from, const char* to) asm("link");
int faultyLinkAt(int folder, const char* from, int other, const char* to, int flags) asm("linkat");
int faultyUnlink(const char* path) asm("unlink");
int faultyUnlinkAt(int folder, const char* path, int flags) asm("unlinkat");
int faultyRemove(const char* path) asm("remove");
int faultyMkdir(const char* path, mode_t mode) asm("mkdir");
int faultyChmod(const char* path, mode_t mode) asm("chmod");
int faultyFchmod(int handle, mode_t mode) asm("fchmod");
int faultyFchown(int handle, uid_t user, gid_t group) asm("fchown");
int faultyFlock(int handle, int operation) asm("flock");
int faultyAccess(const char* path, int mode) asm("access");
int faultyStat(const char* path, void* status) asm("stat");
int faultyStat64(const char* path, void* status) asm("stat64");
int faultyLstat(const char* path, void* status) asm("lstat");
int faultyLstat64(const char* path, void* status) asm("lstat64");
int faultyFstat(int handle, void* status) asm("fstat");
int faultyFstat64(int handle, void* status) asm("fstat64");
int faultyFstatAt(int folder, const char* path, void* status, int flags) asm("fstatat");
int faultyFstatAt64(int folder, const char* path, void* status, int flags) asm("fstatat64");
int faultyStatX(int folder, const char* path, int flags, unsigned mask, void* status) asm("statx");

int faultyOpen(const char* path, int flags, mode_t mode)
{
    return opened("open", path, flags, mode);
}
int faultyOpen64(const char* path, int flags, mode_t mode)
{
    return opened("open64", path, flags, mode);
}
int faultyOpen2(const char* path, int flags)
{
    return opened("open", path, flags, 0);
}
int faultyOpen642(const char* path, int flags)
{
    return opened("open64", path, flags, 0);
}
int faultyOpenAt(int folder, const char* path, int flags, mode_t mode)
{
    return openedAt("openat", folder, path, flags, mode);
}
int faultyOpenAt64(int folder, const char* path, int flags, mode_t mode)
{
    return openedAt("openat64", folder, path, flags, mode);
}

/// As the system does it: the handle is gone whatever is said.
int faultyClose(int handle)
{
    const Fault fault = judged("close", behindHandle(handle));
    const int before = errno;
    const int result = next<OfHandle>("close")(handle);
    if (fault.kind != Fault::Error)
        return result;
    errno = before;
    return -1;
}

ssize_t faultyWrite(int handle, const void* bytes, size_t size)
{
    const Fault fault = judged("write", behindHandle(handle));
    return called<Write>(fault, "write", handle, bytes, fault.kind == Fault::Short ? (size + 1) / 2 : size);
}

int faultyFsync(int handle)
{
    return called<OfHandle>(judged("fsync", behindHandle(handle)), "fsync", handle);
}
int faultyFdatasync(int handle)
{
    return called<OfHandle>(judged("fdatasync", behindHandle(handle)), "fdatasync", handle);
}

int faultyRename(const char* from, const char* to)
{
    return called<OfTwo>(judged("rename", whole(AT_FDCWD, from), whole(AT_FDCWD, to)), "rename", from, to);
}
int faultyRenameAt(int folder, const char* from, int other, const char* to)
{
    return called<AtTwo>(judged("rename", whole(folder, from), whole(other, to)), "renameat", folder, from,
                         other, to);
}
int faultyRenameAt2(int folder, const char* from, int other, const char* to, unsigned flags)
{
    return called<AtTwoFlags>(judged("rename", whole(folder, from), whole(other, to)), "renameat2", folder,
                              from, other, to, flags);
}
int faultyLink(const char* from, const char* to)
{
    return called<OfTwo>(judged("link", whole(AT_FDCWD, from), whole(AT_FDCWD, to)), "link", from, to);
}
int faultyLinkAt(int folder, const char* from, int other, const char* to, int flags)
{
    return called<LinkAt>(judged("link", whole(folder, from), whole(other, to)), "linkat", folder, from,
                          other, to, flags);
}

int faultyUnlink(const char* path)
{
    return called<OfPath>(judged("unlink", whole(AT_FDCWD, path)), "unlink", path);
}
int faultyUnlinkAt(int folder, const char* path, int flags)
{
    return called<AtFlags>(judged("unlink", whole(folder, path)), "unlinkat", folder, path, flags);
}
int faultyRemove(const char* path)
{
    return called<OfPath>(judged("unlink", whole(AT_FDCWD, path)), "remove", path);
}

int faultyMkdir(const char* path, mode_t mode)
{
    return called<Chmod>(judged("mkdir", whole(AT_FDCWD, path)), "mkdir", path, mode);
}
int faultyChmod(const char* path, mode_t mode)
{
    return called<Chmod>(judged("chmod", whole(AT_FDCWD, path)), "chmod", path, mode);
}
int faultyFchmod(int handle, mode_t mode)
{
    return called<HandleChmod>(judged("chmod", behindHandle(handle)), "fchmod", handle, mode);
}
int faultyFchown(int handle, uid_t user, gid_t group)
{
    return called<Chown>(judged("chown", behindHandle(handle)), "fchown", handle, user, group);
}
int faultyFlock(int handle, int operation)
{
    return called<int(int, int)>(judged("flock", behindHandle(handle)), "flock", handle, operation);
}
int faultyAccess(const char* path, int mode)
{
    return called<int(const char*, int)>(judged("access", whole(AT_FDCWD, path)), "access", path, mode);
}

int faultyStat(const char* path, void* status)
{
    return called<PathStat>(judged("stat", whole(AT_FDCWD, path)), "stat", path, status);
}
int faultyStat64(const char* path, void* status)
{
    return called<PathStat>(judged("stat", whole(AT_FDCWD, path)), "stat64", path, status);
}
int faultyLstat(const char* path, void* status)
{
    return called<PathStat>(judged("stat", whole(AT_FDCWD, path)), "lstat", path, status);
}
int faultyLstat64(const char* path, void* status)
{
    return called<PathStat>(judged("stat", whole(AT_FDCWD, path)), "lstat64", path, status);
}
int faultyFstat(int handle, void* status)
{
    return called<HandleStat>(judged("stat", behindHandle(handle)), "fstat", handle, status);
}
int faultyFstat64(int handle, void* status)
{
    return called<HandleStat>(judged("stat", behindHandle(handle)), "fstat64", handle, status);
}
int faultyFstatAt(int folder, const char* path, void* status, int flags)
{
    return called<AtStat>(judged("stat", whole(folder, path)), "fstatat", folder, path, status, flags);
}
int faultyFstatAt64(int folder, const char* path, void* status, int flags)
{
    return called<AtStat>(judged("stat", whole(folder, path)), "fstatat64", folder, path, status, flags);
}
int faultyStatX(int folder, const char* path, int flags, unsigned mask, void* status)
{
    return called<StatX>(judged("stat", whole(folder, path)), "statx", folder, path, flags, mask, status);
}
