// What assistive tools are told.
#pragma once

namespace tessarine
{

/// From now on every control has its name, and what is painted has a place among the things on the
/// screen. Nothing is made before a tool asks for it.
void InstallAccessibility();

} // namespace tessarine
