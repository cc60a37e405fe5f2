#include "margin/TextFiles.h"

#include "frame/Ui.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>

namespace tallimark {

VbError FileError(int errnum) {
    switch (errnum) {
    case ENOENT:
    case ENOTDIR:
        return VbError(vberr::PathNotFound, "Path not found");
    case EACCES:
    case EPERM:
    case EROFS:
        return VbError(vberr::PermissionDenied, "Permission denied");
    case ENOSPC:
    case EDQUOT:
        return VbError(vberr::DiskFull, "Disk full");
    case ENOMEM:
        return VbError(vberr::OutOfMemory, "Out of memory");
    default:
        return VbError(vberr::PathFileAccess, "Path/File access error");
    }
}

VbError RunTimeError(const std::exception& error) {
    if (const auto* vb = dynamic_cast<const VbError*>(&error)) return *vb;
    if (const auto* fs = dynamic_cast<const std::filesystem::filesystem_error*>(&error))
        return FileError(fs->code().value());
    if (dynamic_cast<const std::bad_alloc*>(&error)) return VbError(vberr::OutOfMemory, "Out of memory");
    return VbError(440, error.what());
}

bool FileExists(const std::filesystem::path& file) {
    std::error_code ec;
    return std::filesystem::is_regular_file(file, ec);
}

void DeleteFile(const std::filesystem::path& file) {
    // Unix deletes by the folder's rights, so a read-only file goes as any other.
    std::error_code ec;
    if (!std::filesystem::remove(file, ec) && ec) throw FileError(ec.value());
}

void WriteTextLine(const std::filesystem::path& file, std::string_view text) {
    std::string line(text);
    line += "\r\n";
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::fopen(file.c_str(), "wb"), std::fclose);
    if (!out) throw FileError(errno);
    const size_t written = std::fwrite(line.data(), 1, line.size(), out.get());
    if (written != line.size()) throw FileError(errno);
    if (std::fclose(out.release()) != 0) throw FileError(errno);
}

void ErrorNumberBox(Ui& ui, const std::string& title, const std::exception& error) {
    const VbError e = RunTimeError(error);
    ui.msgBox({"Error No.: " + std::to_string(e.number()) + "\n" + e.text(), title, MsgButtons::Ok,
               MsgIcon::Critical});
}

} // namespace tallimark
