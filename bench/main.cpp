#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/ratio_reporter.h"

int main(int argc, char** argv) {
  // Repetitions of all benchmarks in turn: a disk that slows down for a while then slows a figure
  // and its floor alike.
  std::string interleave = "--benchmark_enable_random_interleaving=true";
  std::vector<char*> arguments(argv, argv + argc);
  arguments.insert(arguments.begin() + 1, interleave.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;
  tricklet::bench::RatioReporter reporter({
      {"ImportBoards", "WriteFilesFloor", 1.5},
      {"SaveBoard", "SaveFloor", 3.0},
      {"ExportBoards", "ReadFilesFloor", 3.0},
      {"OpenLibrary", "OpenFloor", 3.0},
      {"AnalyseBoards", "SolverAloneFloor", 1.05},
      {"ReviewPlays", "PlayAloneFloor", 1.1},
      {"SimulateLeads", "PositionsAloneFloor", 1.05},
      {"ReviewEvening", "EveningAloneFloor", 1.1},
      {"ReportEvening", "EveningAloneFloor", 2.0},
      {"ReportEveningAgain", "EveningAloneFloor", 0.05},
      {"ImportDlm", "ReadDlmFloor", 2.0},
      {"ImportLinRecords", "ReadLinFloor", 2.0},
      {"ImportUsebio", "UsebioFloor", 2.0},
      {"LookAndImportCleanBoards", "ImportCleanBoards", 1.1},
      {"LookAndImportClub", "ReadClubFloor", 1.5},
      {"FindInAllLibraries", "ReadAllFilesFloor", 1.5},
      {"MakeWebPage", "EscapeWebPage", 10.0},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}
