#include "frame/StoreLock.h"

#include "frame/Store.h"

#include <cerrno>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <unistd.h>

namespace tallimark {

StoreLock::StoreLock(const std::filesystem::path& storeFile) {
    // The folder, not the store file, carries the lock: closing a descriptor of the store file
    // would drop the locks SQLite holds on it.
    const std::filesystem::path folder = storeFile.has_parent_path() ? storeFile.parent_path() : ".";
    fd_ = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd_ < 0) return;
    if (::flock(fd_, LOCK_EX | LOCK_NB) == 0) return;
    const int error = errno;
    ::close(fd_);
    fd_ = -1;
    if (error == EWOULDBLOCK)
        throw StoreError(SQLITE_BUSY, "The store " + storeFile.string() +
                                          " is open in another Tallimark process; it serves one "
                                          "workstation at a time.");
}

StoreLock::~StoreLock() {
    if (fd_ >= 0) ::close(fd_);
}

} // namespace tallimark
