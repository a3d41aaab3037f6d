// The system's own boxes.
#pragma once

#include "runtime/platform.h"

#include <string>

class QWidget;

namespace tessarine::dialogs
{

/// True for Ok and for Yes. Closing the box means Ok or No.
bool Message(QWidget* parent, const std::string& text, PlainButtons buttons);
/// The text typed; empty when nothing was or on cancel.
std::string Text(QWidget* parent, const std::string& prompt);
/// The full path chosen; empty on cancel. The current folder is the same as before.
std::string File(QWidget* parent, const FileDialogRequest& request);

} // namespace tessarine::dialogs
