// What each system does in its own way where the toolkit is no help. start_posix.cpp and
// start_windows.cpp stand side by side, and the build chooses.
#pragma once

namespace tessarine
{

/// Whether there may be a desktop to show a window on. False: there is none, and the toolkit need not
/// look for it.
bool MayHaveDesktop();

/// Tells whoever started the program why it ends at once. The text is ASCII, one sentence.
void SayWithoutDesktop(const char* sentence);

/// Whether every desktop of this system brings a file dialog of its own.
extern const bool SystemHasFileDialog;

} // namespace tessarine
