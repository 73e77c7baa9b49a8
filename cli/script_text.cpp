#include "cli/script_text.h"

#include <iostream>

#include "conditions/script.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"

namespace tricklet::cli {
namespace {

bool IsStandardInput(const std::string& file) {
  return file == "-";
}

}  // namespace

std::optional<std::string> ReadScriptText(Host& host, const std::string& file) {
  if (IsStandardInput(file)) {
    std::string text;
    char c = 0;
    while (text.size() <= kLongestScript && std::cin.get(c)) text += c;
    return text;
  }
  try {
    return ReadWholeFile(PathFromText(file), kLongestScript);
  } catch (const Fault& fault) {
    host.TellError(fault.Description());
    return std::nullopt;
  }
}

std::string ShownScript(const std::string& file) {
  return IsStandardInput(file) ? "standard input" : ShownPath(PathFromText(file));
}

}  // namespace tricklet::cli
