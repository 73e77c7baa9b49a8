// A solver library that answers what the text of the deal says, however impossible.
#include <cstdint>
#include <cstdlib>

extern "C" std::int32_t CalcDDtablePBNVB(const char* deal, std::int32_t* tricks);

std::int32_t CalcDDtablePBNVB(const char* deal, std::int32_t* tricks) {
  tricks[19] = std::atoi(deal);
  return 1;
}
