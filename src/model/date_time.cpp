#include "model/date_time.h"

#include <cstdio>
#include <ctime>

namespace lw {

std::string DateTime::toDisplayText() const {
    int hour12 = hour % 12 == 0 ? 12 : hour % 12;
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d %d:%02d:%02d %s", month, day, year, hour12, minute,
                  second, hour < 12 ? "AM" : "PM");
    return buffer;
}

std::string DateTime::toStampText() const {
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "%04d%02d%02d%02d%02d%02d", year, month, day, hour, minute, second);
    return buffer;
}

DateTime DateTime::plusMilliseconds(long long ms) const {
    std::tm tm{};
    tm.tm_year = year - 1900;
    tm.tm_mon = month - 1;
    tm.tm_mday = day;
    tm.tm_hour = hour;
    tm.tm_min = minute;
    tm.tm_sec = second;
    std::time_t t = timegm(&tm) + static_cast<std::time_t>(ms / 1000);
    std::tm out{};
    gmtime_r(&t, &out);
    return DateTime{out.tm_year + 1900, out.tm_mon + 1, out.tm_mday, out.tm_hour, out.tm_min, out.tm_sec};
}

}  // namespace lw
