#pragma once

#include <QDateTime>
#include <QString>

// Turns a picker's value into text with a strftime-style format ("%Y/%m/%d", "%H/%M"), from the
// date and time the value holds in its own time spec. Qt's own formatters speak a different format language,
// so this one hands the format to the C library as it stands.
class DateFormatter {
public:
    // Natural-language parsing is never asked for; the flag is kept only so the caller's
    // intent stays visible where the formatter is made.
    DateFormatter(const QString& format, bool allowNaturalLanguage);

    // An invalid value or an empty format gives an empty text.
    QString stringFromDate(const QDateTime& date) const;

private:
    QString m_format;
};
