#include "DateFormatter.h"

#include <ctime>
#include <vector>

namespace {
// strftime says "did not fit" and "nothing to write" with the same 0, so the buffer grows a few
// times and then the text is taken as empty.
constexpr size_t kFirstBufferSize = 64;
constexpr size_t kLargestBufferSize = size_t{1} << 16;
} // namespace

DateFormatter::DateFormatter(const QString& format, bool allowNaturalLanguage)
    : m_format(format), m_allowNaturalLanguage(allowNaturalLanguage) {}

QString DateFormatter::stringFromDate(const QDateTime& date) const {
    if (!date.isValid() || m_format.isEmpty()) return {};

    const std::time_t seconds = static_cast<std::time_t>(date.toSecsSinceEpoch());
    std::tm local{};
    if (!localtime_r(&seconds, &local)) return {};

    const QByteArray format = m_format.toLocal8Bit();
    std::vector<char> buffer(kFirstBufferSize);
    while (buffer.size() <= kLargestBufferSize) {
        const size_t written = std::strftime(buffer.data(), buffer.size(), format.constData(), &local);
        if (written > 0) return QString::fromLocal8Bit(buffer.data(), static_cast<qsizetype>(written));
        buffer.resize(buffer.size() * 4);
    }
    return {};
}
