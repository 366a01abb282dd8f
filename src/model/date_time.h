#pragma once
// A moment of the machine's clock, as the program reads it.

#include <string>

namespace lw {

struct DateTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    // "mm/dd/yyyy hh:mm:ss AM", the way the report form shows the moment of an error.
    std::string toDisplayText() const;
    // "yyyymmddHhNnss": fourteen digits, year first, the hour on the 24-hour clock; a license's number.
    std::string toStampText() const;
    DateTime plusMilliseconds(long long ms) const;
};

}  // namespace lw
