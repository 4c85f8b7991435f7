#pragma once

#include <QDateTime>
#include <QString>

// Turns a moment into text with a strftime-style format ("%Y/%m/%d", "%H/%M"), read in the
// local time zone. Qt's own formatters speak a different format language, so this one hands the
// format to the C library as it stands.
class DateFormatter {
public:
    // Natural-language parsing is never asked for; the flag is kept only so the caller's
    // intent stays visible where the formatter is made.
    DateFormatter(const QString& format, bool allowNaturalLanguage);

    const QString& dateFormat() const { return m_format; }
    bool allowsNaturalLanguage() const { return m_allowNaturalLanguage; }

    // An invalid moment, one the C library cannot place in local time, or an empty format gives
    // an empty text.
    QString stringFromDate(const QDateTime& date) const;

private:
    QString m_format;
    bool m_allowNaturalLanguage = false;
};
