// Times by the clock and time zone of this computer.
#pragma once

#include <ctime>
#include <string>

namespace tricklet {

/// By the codes of `std::strftime`, of which those for names follow the system's language.
std::string LocalTimeText(std::time_t time, const char* format);

/// "17 November 2026", in English as the rest of the program's texts.
std::string TodayText();

}  // namespace tricklet
