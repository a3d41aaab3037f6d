// Files as the system has them. Paths are UTF-8. What can be done in one way on every system stands in
// files.cpp, what each does in its own way in files_posix.cpp and files_windows.cpp.
#pragma once

#include "runtime/file_fault.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace tessarine::files
{

// On every system.

/// The whole file.
FileResult Read(const std::string& path);
/// The place to which a write of this path has to go: where it leads if it is a link, itself if not.
/// A fault if nothing may be put there.
FileResult PlaceToWrite(const std::string& path);
void Remove(const std::string& path);
/// A plain file that is not hidden.
bool IsPlain(const std::string& path);
std::string CurrentFolder();
void ChangeFolder(const std::string& folder);
/// The characters that part folders, the usual one first.
std::string_view FolderSeparators();

std::filesystem::path PathOf(std::string_view utf8);
FileFault FaultOf(const std::error_code& failure);

// On each system in its own way.

/// Makes or empties the file, writes it and waits until the disk has it. With a fault it may be left
/// in part.
FileFault WriteNew(const std::filesystem::path& path, std::string_view bytes);
/// Puts a file in place of another, whole or not at all, and waits until the disk has it. The other's
/// mode stays.
FileFault Rename(const std::filesystem::path& from, const std::filesystem::path& to);
/// Whether a file that is there may not be written, even by a user who may do anything.
bool IsWriteProtected(const std::filesystem::path& path);
/// Whether a listing of its folder leaves the file out.
bool IsHidden(const std::filesystem::path& path);

} // namespace tessarine::files
