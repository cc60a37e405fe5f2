#pragma once
// One workstation at a time on a store: an operating-system lock on the store's folder, held for
// as long as the store is open. The system drops it when its process ends, however it ends, so a
// crash never leaves a stale lock behind.
#include <filesystem>

namespace tallimark {

class StoreLock {
public:
    // Takes the lock for the store file in its folder; raises the store's error, naming the
    // store, when another process holds it. A folder that does not exist takes no lock: the open
    // of the store then fails with its own error.
    explicit StoreLock(const std::filesystem::path& storeFile);
    ~StoreLock();
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

private:
    int fd_ = -1;
};

} // namespace tallimark
