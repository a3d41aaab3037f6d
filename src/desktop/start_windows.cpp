#include "desktop/start.h"

#include <windows.h>

namespace tessarine
{

const bool SystemHasFileDialog = true;

bool MayHaveDesktop()
{
    return true;
}

/// A program without a console has nowhere to print, but the system's own box needs no toolkit.
void SayWithoutDesktop(const char* sentence)
{
    MessageBoxA(nullptr, sentence, "Tessarine", MB_OK | MB_ICONERROR);
}

} // namespace tessarine
