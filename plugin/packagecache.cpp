#include "packagecache.h"

#include <mutex>
#include <system_error>
#include <utility>

namespace o7 {
namespace {

namespace fs = std::filesystem;

/// What tells one state of a file from another.
struct FileState
{
    fs::path file;
    std::uintmax_t size = 0;
    fs::file_time_type written;

    friend bool operator==(const FileState&, const FileState&) = default;
};

struct Cache
{
    std::mutex mutex;
    FileState state;
    std::shared_ptr<const ProductPackage> package;
};

/// Never destroyed: when a process ends, its other threads may have been stopped anywhere.
Cache& cache()
{
    static auto& theCache = *new Cache;
    return theCache;
}

FileState stateOf(const fs::path& package, std::error_code& error)
{
    FileState state;
    state.file = fs::is_directory(package, error) ? package / "package.json" : package;
    error.clear();
    state.size = fs::file_size(state.file, error);
    if (!error) {
        state.written = fs::last_write_time(state.file, error);
    }
    return state;
}

} // namespace

std::shared_ptr<const ProductPackage> cachedPackage(const fs::path& package,
                                                    std::vector<PackageError>& errors)
{
    std::error_code error;
    // Asked before it is read: what is written meanwhile makes the next call read it again.
    FileState state = stateOf(package, error);
    Cache& last = cache();
    const std::lock_guard locked(last.mutex);
    if (!error && last.package && last.state == state) {
        return last.package;
    }
    std::shared_ptr<const ProductPackage> loaded = LoadProductPackage(package, errors);
    if (loaded && !error) {
        last.state = std::move(state);
        last.package = loaded;
    }
    return loaded;
}

} // namespace o7
