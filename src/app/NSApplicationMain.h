#pragma once

#include <memory>

class QWidget;
class Frame_Control;

// Builds the one window from the interface file; the caller shows it.
std::unique_ptr<QWidget> LoadMainWindow();
// The content view of a window made by LoadMainWindow.
Frame_Control* RootView(QWidget* window);

// Creates the application, loads the interface file, shows the window whole on its screen (scaled
// down where it does not fit) and runs the event loop.
int NSApplicationMain(int argc, char** argv);
