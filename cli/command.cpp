#include "cli/command.h"

#include <utility>

#include <CLI/CLI.hpp>

#include "core/notation.h"

namespace tricklet::cli {

void AddBoardArgument(CLI::App& command, int& board) {
  command.add_option("N", board, "Board number")
      ->required()
      ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
}

void WhenChosen(CLI::App& app, Command& command, Command procedure) {
  app.callback([&command, procedure = std::move(procedure)] { command = procedure; });
}

std::string NotEmpty(const std::string& text) {
  return text.empty() ? "it is empty" : "";
}

}  // namespace tricklet::cli
