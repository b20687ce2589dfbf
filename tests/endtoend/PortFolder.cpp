// Preloaded into the program by a test: the serial ports of the machine are what lies under their
// names in a folder of the test's own, and only that. So a modem can be played without any rights
// on the machine, and a real one that happens to be there is left in peace.

#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <initializer_list>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool IsSerialPort(std::string_view path) {
    for (const std::string_view kind : {"/dev/ttyS", "/dev/ttyACM", "/dev/ttyUSB", "/dev/rfcomm"}) {
        if (path.substr(0, kind.size()) == kind)
            return true;
    }
    return false;
}

/// Where a file really lies.
std::string PlaceOf(const char* path) {
    const char* folder = std::getenv("PLAYED_PORTS");
    if (!folder || !IsSerialPort(path))
        return path;
    return folder + std::string(path).substr(std::string_view("/dev").size());
}

template <typename Function>
Function Real(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

// The calls by which the toolkit finds and opens a file.
extern "C" {

int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const bool makesFile = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    const mode_t mode = makesFile ? va_arg(more, mode_t) : 0;
    va_end(more);
    static const auto real = Real<int (*)(const char*, int, mode_t)>("open64");
    return real(PlaceOf(path).c_str(), flags, mode);
}

int access(const char* path, int kind) {
    static const auto real = Real<int (*)(const char*, int)>("access");
    return real(PlaceOf(path).c_str(), kind);
}

int stat64(const char* path, struct stat64* found) {
    static const auto real = Real<int (*)(const char*, struct stat64*)>("stat64");
    return real(PlaceOf(path).c_str(), found);
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* found) {
    static const auto real = Real<int (*)(int, const char*, int, unsigned, struct statx*)>("statx");
    return real(folder, PlaceOf(path).c_str(), flags, mask, found);
}
}
