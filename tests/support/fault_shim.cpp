// A library to be loaded before all others (LD_PRELOAD) into a program under test. It makes the
// n-th system call of a kind fail, or kills or stops the process there, so that a test can try
// every one of them in turn. No right to trace is needed. faults/fault.py sets it up:
//
//   FAULT_AT=n       which call, from 1; without it calls are only counted
//   FAULT_DO=what    the error it gets, by name or number (ENOSPC); or SHORT: half the bytes are
//                    written; KILL: SIGKILL instead of the call; STOP: SIGSTOP before it
//   FAULT_ONWARD=1   the later calls fail likewise: the disk stays full
//   FAULT_CALLS=...  any of: write (what changes files; the default), lock, read; joined by ","
//   FAULT_UNDER=dir  only calls about files in this folder and below
//   FAULT_REPORT=f   f gets a line: how many calls there were, and the name of the last one hit
//
// What the C library calls inside itself, as its streams do, cannot be seen from here.
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

// The declarations of these functions say which pointers are never null; a shim cannot know.
#pragma GCC diagnostic ignored "-Wnonnull-compare"

namespace {

enum Kind : unsigned { Write = 1, Lock = 2, Read = 4 };

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

int ErrorNumber(const std::string& name) {
  struct Known {
    std::string_view name;
    int number;
  };
  static constexpr Known known[] = {{"EACCES", EACCES}, {"EDQUOT", EDQUOT}, {"EINTR", EINTR},
                                    {"EIO", EIO},       {"EMFILE", EMFILE}, {"ENOENT", ENOENT},
                                    {"ENOMEM", ENOMEM}, {"ENOSPC", ENOSPC}, {"EPERM", EPERM},
                                    {"EROFS", EROFS}};
  for (const auto& [one, number] : known)
    if (one == name) return number;
  return std::atoi(name.c_str());
}

unsigned Kinds(const std::string& names) {
  unsigned kinds = names.empty() ? unsigned{Write} : 0;
  if (names.find("write") != std::string::npos) kinds |= Write;
  if (names.find("lock") != std::string::npos) kinds |= Lock;
  if (names.find("read") != std::string::npos) kinds |= Read;
  return kinds;
}

struct Plan {
  long at = std::atol(Variable("FAULT_AT").c_str());
  std::string what = Variable("FAULT_DO");
  int error = ErrorNumber(what);
  bool onward = !Variable("FAULT_ONWARD").empty();
  unsigned kinds = Kinds(Variable("FAULT_CALLS"));
  std::string under = Variable("FAULT_UNDER");
  std::string report = Variable("FAULT_REPORT");
  std::atomic<long> calls = 0;
  std::atomic<const char*> hit = "";

  // Past the functions below, which would count it.
  void Report() const {
    if (report.empty()) return;
    const auto file = static_cast<int>(
        ::syscall(SYS_openat, AT_FDCWD, report.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600));
    const std::string line = std::to_string(calls) + " " + hit.load() + "\n";
    ::syscall(SYS_write, file, line.data(), line.size());
    ::syscall(SYS_close, file);
  }
};

// Made at the first call, since other libraries may open files before this one is set up; never
// destroyed, since they may write some after its end.
Plan& ThePlan() {
  static Plan* const plan = new Plan;
  return *plan;
}

[[gnu::destructor]] void ReportAtTheEnd() {
  ThePlan().Report();
}

bool Concerns(std::string path) {
  const std::string& under = ThePlan().under;
  if (under.empty()) return true;
  if (!path.starts_with('/')) {
    char folder[4096] = "";
    ::syscall(SYS_getcwd, folder, sizeof folder);
    path = std::string(folder) + '/' + path;
  }
  return path.compare(0, under.size(), under) == 0 &&
         (path.size() == under.size() || path[under.size()] == '/');
}

std::string PathOf(int file) {
  char path[4096] = "";
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  ::syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path, sizeof path - 1);
  return path;
}

bool Concerns(int file) {
  return ThePlan().under.empty() || Concerns(PathOf(file));
}

// Counts a call. True when it shall fail, with errno set; a short write is told by `shortened`.
bool Hit(const char* name, bool* shortened = nullptr) {
  Plan& plan = ThePlan();
  const long number = ++plan.calls;
  if (plan.at == 0 || number < plan.at || (number > plan.at && !plan.onward)) return false;
  plan.hit = name;
  plan.Report();
  if (plan.what == "KILL") ::syscall(SYS_kill, ::getpid(), SIGKILL);
  if (plan.what == "STOP") ::syscall(SYS_kill, ::getpid(), SIGSTOP);
  if (plan.what == "SHORT" && shortened) *shortened = true;
  errno = plan.error;
  return plan.error != 0;
}

template <class File>
bool Fails(Kind kind, const char* name, const File& file, bool* shortened = nullptr) {
  return (ThePlan().kinds & kind) != 0 && Concerns(file) && Hit(name, shortened);
}

template <class Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

Kind KindOfOpen(int flags) {
  return (flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0 ? Write : Read;
}

bool TakesMode(int flags) {
  return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

mode_t ModeOf(int flags, va_list& more) {
  return TakesMode(flags) ? va_arg(more, mode_t) : 0;
}

}  // namespace

// A function of the C library that fails with -1, or with null, when its turn has come.
#define SHIM(result, name, parameters, kind, file, arguments)                           \
  result name parameters {                                                              \
    static const auto real = Real<result(*) parameters>(#name);                         \
    if (Fails(kind, #name, file)) return (result)-1; /* NOLINT: numbers of all types */ \
    return real arguments;                                                              \
  }

// One that writes bytes, of which half may be written.
#define SHIM_BYTES(name, parameters, file, arguments, half)      \
  ssize_t name parameters {                                      \
    static const auto real = Real<ssize_t(*) parameters>(#name); \
    bool shortened = false;                                      \
    if (Fails(Write, #name, file, &shortened)) return -1;        \
    if (shortened) return real half;                             \
    return real arguments;                                       \
  }

#define SHIM_OPEN(name)                                                   \
  int name(const char* path, int flags, ...) {                            \
    static const auto real = Real<int (*)(const char*, int, ...)>(#name); \
    va_list more;                                                         \
    va_start(more, flags);                                                \
    const mode_t mode = ModeOf(flags, more);                              \
    va_end(more);                                                         \
    if (Fails(KindOfOpen(flags), #name, std::string(path))) return -1;    \
    return real(path, flags, mode);                                       \
  }

#define SHIM_OPENAT(name)                                                      \
  int name(int folder, const char* path, int flags, ...) {                     \
    static const auto real = Real<int (*)(int, const char*, int, ...)>(#name); \
    va_list more;                                                              \
    va_start(more, flags);                                                     \
    const mode_t mode = ModeOf(flags, more);                                   \
    va_end(more);                                                              \
    if (Fails(KindOfOpen(flags), #name, std::string(path))) return -1;         \
    return real(folder, path, flags, mode);                                    \
  }

#define SHIM_FCNTL(name)                                                                      \
  int name(int file, int command, ...) {                                                      \
    static const auto real = Real<int (*)(int, int, ...)>(#name);                             \
    va_list more;                                                                             \
    va_start(more, command);                                                                  \
    void* const argument = va_arg(more, void*);                                               \
    va_end(more);                                                                             \
    const bool locks = command == F_SETLK || command == F_SETLKW || command == F_OFD_SETLK || \
                       command == F_OFD_SETLKW;                                               \
    if (locks && Fails(Lock, #name, file)) return -1;                                         \
    return real(file, command, argument);                                                     \
  }

// clang-format off
extern "C" {

SHIM_OPEN(open)
SHIM_OPEN(open64)
SHIM_OPENAT(openat)
SHIM_OPENAT(openat64)
SHIM_FCNTL(fcntl)
SHIM_FCNTL(fcntl64)

SHIM_BYTES(write, (int file, const void* bytes, size_t size), file, (file, bytes, size),
           (file, bytes, (size + 1) / 2))
SHIM_BYTES(pwrite, (int file, const void* bytes, size_t size, off_t at), file,
           (file, bytes, size, at), (file, bytes, (size + 1) / 2, at))
SHIM_BYTES(pwrite64, (int file, const void* bytes, size_t size, off64_t at), file,
           (file, bytes, size, at), (file, bytes, (size + 1) / 2, at))
SHIM(ssize_t, writev, (int file, const iovec* parts, int count), Write, file,
     (file, parts, count))
SHIM(ssize_t, sendfile, (int to, int from, off_t* at, size_t size), Write, to,
     (to, from, at, size))
SHIM(ssize_t, sendfile64, (int to, int from, off64_t* at, size_t size), Write, to,
     (to, from, at, size))
SHIM(ssize_t, copy_file_range,
     (int from, off64_t* fromAt, int to, off64_t* toAt, size_t size, unsigned flags), Write, to,
     (from, fromAt, to, toAt, size, flags))

SHIM(int, mkstemp, (char* name), Write, std::string(name), (name))
SHIM(int, mkstemp64, (char* name), Write, std::string(name), (name))
SHIM(int, mkostemp, (char* name, int flags), Write, std::string(name), (name, flags))
SHIM(int, mkostemp64, (char* name, int flags), Write, std::string(name), (name, flags))
SHIM(int, mkdir, (const char* name, mode_t mode), Write, std::string(name), (name, mode))
SHIM(int, mkdirat, (int folder, const char* name, mode_t mode), Write, std::string(name),
     (folder, name, mode))
SHIM(int, rename, (const char* from, const char* to), Write, std::string(to), (from, to))
SHIM(int, renameat, (int fromIn, const char* from, int toIn, const char* to), Write,
     std::string(to), (fromIn, from, toIn, to))
SHIM(int, renameat2, (int fromIn, const char* from, int toIn, const char* to, unsigned flags),
     Write, std::string(to), (fromIn, from, toIn, to, flags))
SHIM(int, link, (const char* from, const char* to), Write, std::string(to), (from, to))
SHIM(int, linkat, (int fromIn, const char* from, int toIn, const char* to, int flags), Write,
     std::string(to), (fromIn, from, toIn, to, flags))
SHIM(int, symlink, (const char* target, const char* name), Write, std::string(name),
     (target, name))
SHIM(int, unlink, (const char* name), Write, std::string(name), (name))
SHIM(int, unlinkat, (int folder, const char* name, int flags), Write, std::string(name),
     (folder, name, flags))
SHIM(int, remove, (const char* name), Write, std::string(name), (name))
SHIM(int, rmdir, (const char* name), Write, std::string(name), (name))
SHIM(int, truncate, (const char* name, off_t size), Write, std::string(name), (name, size))
SHIM(int, ftruncate, (int file, off_t size), Write, file, (file, size))
SHIM(int, ftruncate64, (int file, off64_t size), Write, file, (file, size))
SHIM(int, fallocate, (int file, int mode, off_t at, off_t size), Write, file,
     (file, mode, at, size))
SHIM(int, fchmod, (int file, mode_t mode), Write, file, (file, mode))
SHIM(int, chmod, (const char* name, mode_t mode), Write, std::string(name), (name, mode))
SHIM(int, fsync, (int file), Write, file, (file))
SHIM(int, fdatasync, (int file), Write, file, (file))

SHIM(int, flock, (int file, int operation), Lock, file, (file, operation))

SHIM(ssize_t, read, (int file, void* bytes, size_t size), Read, file, (file, bytes, size))
SHIM(ssize_t, pread, (int file, void* bytes, size_t size, off_t at), Read, file,
     (file, bytes, size, at))
SHIM(ssize_t, pread64, (int file, void* bytes, size_t size, off64_t at), Read, file,
     (file, bytes, size, at))
SHIM(int, stat, (const char* name, struct stat* into), Read, std::string(name), (name, into))
SHIM(int, stat64, (const char* name, struct stat64* into), Read, std::string(name), (name, into))
SHIM(int, lstat, (const char* name, struct stat* into), Read, std::string(name), (name, into))
SHIM(int, lstat64, (const char* name, struct stat64* into), Read, std::string(name), (name, into))
SHIM(int, fstat, (int file, struct stat* into), Read, file, (file, into))
SHIM(int, fstat64, (int file, struct stat64* into), Read, file, (file, into))
SHIM(int, access, (const char* name, int mode), Read, std::string(name), (name, mode))

}  // extern "C"
