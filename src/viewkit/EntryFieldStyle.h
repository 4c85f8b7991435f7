#pragma once

class QWidget;

// The look of the app's few native entry fields (the scenario name, the date and time pickers),
// so they sit in the artwork's text wells instead of showing the desktop theme's grey boxes.
void ApplyEntryFieldStyle(QWidget* field);
