#pragma once
// The file steps of the margin screens, failing with the run-time's error numbers ("Path not
// found", "Permission denied", "Disk full") so that their boxes read as the desk knows them.
#include "frame/VbError.h"

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace tallimark {

class Ui;

namespace vberr {
inline constexpr long OutOfMemory = 7;
inline constexpr long DiskFull = 61;
inline constexpr long InputPastEndOfFile = 62;
inline constexpr long PermissionDenied = 70;
inline constexpr long PathFileAccess = 75;
inline constexpr long PathNotFound = 76;
} // namespace vberr

// The run-time error of a failed system call.
VbError FileError(int errnum);
// Any failure as the run-time error a trap reads: its number and description.
VbError RunTimeError(const std::exception& error);

// A file, not a folder, stands at the path.
bool FileExists(const std::filesystem::path& file);
// Deletes a file at once, a read-only one too.
void DeleteFile(const std::filesystem::path& file);
// Creates the file with overwrite and writes the text as one line: the text and one CRLF, in
// one write.
void WriteTextLine(const std::filesystem::path& file, std::string_view text);

// The failure box of the margin screens: "Error No.: " + number, a line break, description.
void ErrorNumberBox(Ui& ui, const std::string& title, const std::exception& error);

} // namespace tallimark
