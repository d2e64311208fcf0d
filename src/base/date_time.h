#pragma once

#include <string>

namespace base {

struct DateTime {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// "d mmm yyyy", such as "7 Mar 2024": in English everywhere, like the catalogue.
std::string DateText(const DateTime& when);
// "hh:mm:ss", such as "09:05:00".
std::string TimeText(const DateTime& when);

}  // namespace base
