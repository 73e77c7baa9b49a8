#include "core/local_time.h"

#include <array>

namespace tricklet {
namespace {

std::tm LocalTime(std::time_t time) {
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &time);
#else
  localtime_r(&time, &local);
#endif
  return local;
}

}  // namespace

std::string LocalTimeText(std::time_t time, const char* format) {
  const std::tm local = LocalTime(time);
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &local)};
}

std::string TodayText() {
  constexpr std::array kMonths{"January",   "February", "March",    "April",
                               "May",       "June",     "July",     "August",
                               "September", "October",  "November", "December"};
  constexpr int kFirstYear = 1900;  // of `tm_year`
  const std::tm local = LocalTime(std::time(nullptr));
  return std::to_string(local.tm_mday) + " " + kMonths.at(static_cast<std::size_t>(local.tm_mon)) +
         " " + std::to_string(local.tm_year + kFirstYear);
}

}  // namespace tricklet
