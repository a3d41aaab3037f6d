// Files as the system has them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine::files
{

/// The whole file; none if it can't be read or is no plain file.
std::optional<std::string> Read(const std::string& path);
/// Makes or empties the file, writes it and waits until the disk has it. False: it may be left in part.
bool WriteNew(const std::string& path, std::string_view bytes);
/// Puts a file in place of another, whole or not at all.
bool Rename(const std::string& from, const std::string& to);
void Remove(const std::string& path);
/// A plain file whose name does not begin with a dot.
bool IsPlain(const std::string& path);
std::string CurrentFolder();
void ChangeFolder(const std::string& folder);

} // namespace tessarine::files
