// What assistive tools are told.
#pragma once

class QWidget;

namespace tessarine
{

/// From now on every control has its name, and what is painted has a place among the things on the
/// screen. Nothing is made before a tool asks for it.
void InstallAccessibility();

/// What a tool has heard of this widget and of what is painted on it may be out of date: it is told of
/// each name that is another one now.
void NamesMayDiffer(QWidget& widget);

} // namespace tessarine
