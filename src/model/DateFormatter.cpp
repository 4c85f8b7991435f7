#include "DateFormatter.h"

#include <ctime>
#include <vector>

namespace {
// strftime says "did not fit" and "nothing to write" with the same 0, so the buffer grows a few
// times and then the text is taken as empty.
constexpr size_t kFirstBufferSize = 64;
constexpr size_t kLargestBufferSize = size_t{1} << 16;
} // namespace

DateFormatter::DateFormatter(const QString& format, bool /*allowNaturalLanguage*/) : m_format(format) {}

QString DateFormatter::stringFromDate(const QDateTime& date) const {
    if (!date.isValid() || m_format.isEmpty()) return {};

    // The picker's own fields, as it shows them: going through the C library's local time would
    // move a calendar date whenever the zone has no such local day (a skipped day, an offset that
    // is not a whole minute), and the button must write what the picker showed.
    const QDate day = date.date();
    const QTime time = date.time();
    std::tm local{};
    local.tm_year = day.year() - 1900;
    local.tm_mon = day.month() - 1;
    local.tm_mday = day.day();
    local.tm_wday = day.dayOfWeek() % 7;
    local.tm_yday = day.dayOfYear() - 1;
    local.tm_hour = time.hour();
    local.tm_min = time.minute();
    local.tm_sec = time.second();
    local.tm_isdst = -1;

    const QByteArray format = m_format.toLocal8Bit();
    std::vector<char> buffer(kFirstBufferSize);
    while (buffer.size() <= kLargestBufferSize) {
        const size_t written = std::strftime(buffer.data(), buffer.size(), format.constData(), &local);
        if (written > 0) return QString::fromLocal8Bit(buffer.data(), static_cast<qsizetype>(written));
        buffer.resize(buffer.size() * 4);
    }
    return {};
}
