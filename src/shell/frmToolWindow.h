#pragma once

class QWidget;

/// Modeless windows over the main window. Qt's children would close with their parent; these only
/// stay above their owner and survive it.
namespace ToolWindow {

/// Shows `tool` above `owner`; one that is shown already comes to the front as it is.
void showOwned(QWidget *tool, QWidget *owner);

/// To be called as `owner` closes: the windows shown above it stand for themselves from now on, so
/// that the program lasts until the last of them is closed.
void release(QWidget *owner);

} // namespace ToolWindow
