#pragma once

#include <QString>

// Writes one line to standard error: local date and time with milliseconds, the program name,
// [process id:thread id], then the message.
void NSLog(const QString& message);

// The line NSLog prints, as text.
QString FormatLogLine(const QString& message);
